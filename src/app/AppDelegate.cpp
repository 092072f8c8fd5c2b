#include "app/AppDelegate.h"

#include "app/MainMenu.h"
#include "store/AppStore.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QWindow>

namespace kiv::app {

using namespace Qt::StringLiterals;
using store::AuthPhase;
using store::AuthSheetMode;
using ui::Command;

namespace {

/// Lets the field that has the focus carry out one of its own operations, if it has it.
void toField(const char *operation) {
    QObject *field = QGuiApplication::focusObject();
    if (field && field->metaObject()->indexOfMethod(QByteArray(operation) + "()") >= 0)
        QMetaObject::invokeMethod(field, operation);
}

/// What only a system that hides whole programs has a use for.
bool isForeign(const ui::MenuEntry &entry) {
#ifdef Q_OS_MACOS
    Q_UNUSED(entry)
    return false;
#else
    return entry.command == Command::HideOthers || entry.command == Command::ShowAll;
#endif
}

/// What shows in the window, not on the screen of a call that may lie over it.
bool showsInWindow(Command command) {
    switch (command) {
    case Command::OpenSettings:
    case Command::NewChat:
    case Command::FocusAsk:
    case Command::ToggleRail:
    case Command::ToggleDock:
    case Command::ToggleHistory:
    case Command::GoOverseer:
    case Command::NewProject:
    case Command::NewAgent:
        return true;
    default:
        return false;
    }
}

} // namespace

AppDelegate::AppDelegate(store::AppStore &store) : m_store(store) {
    connect(qApp, &QCoreApplication::aboutToQuit, this, &AppDelegate::hangUpForGood);
    connect(store.scope(), &store::ScopeRoom::authChanged, this, &AppDelegate::menusChanged);
    connect(&store, &store::AppStore::retranslated, this, &AppDelegate::menusChanged);
}

QList<ui::MenuDescription> AppDelegate::menus() const {
    QList<ui::MenuDescription> menus =
        MainMenu::build(m_store.scope()->auth() == AuthPhase::SignedIn);
    for (ui::MenuDescription &menu : menus)
        menu.entries.removeIf(isForeign);
    return menus;
}

void AppDelegate::perform(Command command) {
    store::LayoutRoom *layout = m_store.layout();
    if (showsInWindow(command))
        m_store.call()->leaveCallScreen();
    switch (command) {
    case Command::CheckUpdates:
        return m_store.update()->checkForUpdates();
    case Command::OpenSettings:
        return layout->openAccount();
    case Command::LogOut:
        return m_store.account()->signOut();
    case Command::ShowSignIn:
        return showSheet(AuthSheetMode::Login);
    case Command::ShowSignUp:
        return showSheet(AuthSheetMode::Signup);
    case Command::NewChat:
        return m_store.chat()->newChat();
    case Command::FocusAsk:
        return layout->focusAsk();
    case Command::ToggleRail:
        return layout->toggleRail();
    case Command::ToggleDock:
        return layout->toggleDock();
    case Command::ToggleHistory:
        return layout->toggleHist();
    case Command::GoOverseer:
        return m_store.scope()->pickGlobal();
    case Command::ToggleCall:
        return toggleCall();
    case Command::NewProject:
        return layout->startCreate(u"project"_s);
    case Command::NewAgent:
        return layout->startCreate(u"agent"_s);
    case Command::Undo:
        return toField("undo");
    case Command::Redo:
        return toField("redo");
    case Command::Cut:
        return toField("cut");
    case Command::Copy:
        return toField("copy");
    case Command::Paste:
        return toField("paste");
    case Command::SelectAll:
        return toField("selectAll");
    case Command::About:
        Q_EMIT aboutRequested();
        return;
    case Command::Quit:
        return QGuiApplication::quit();
    case Command::Hide:
    case Command::CloseWindow:
    case Command::Minimize:
    case Command::Zoom:
    case Command::FullScreen:
        if (m_window)
            toWindow(command);
        return;
    case Command::HideOthers:
    case Command::ShowAll:
    case Command::None:
        return;
    }
}

void AppDelegate::toggleCall() {
    store::CallRoom *call = m_store.call();
    if (call->call())
        call->hangupCall();
    else
        call->callAction();
}

/// The backend hears of the end of a call before the program is gone, unless it is slow to listen.
void AppDelegate::hangUpForGood() {
    constexpr int patience = 1500;
    constexpr int glance = 20;
    store::CallRoom *call = m_store.call();
    call->leaveCall();
    const QDeadlineTimer deadline(patience);
    while (call->isTellingEnd() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, glance);
}

void AppDelegate::showSheet(AuthSheetMode mode) {
    if (m_store.scope()->auth() != AuthPhase::SignedIn)
        m_store.session()->openAuthSheet(mode);
}

void AppDelegate::toWindow(Command command) {
    const Qt::WindowStates states = m_window->windowStates();
    switch (command) {
    case Command::CloseWindow:
        m_window->close();
        return;
    case Command::Zoom:
        return m_window->setWindowStates(states ^ Qt::WindowMaximized);
    case Command::FullScreen:
        return m_window->setWindowStates(states ^ Qt::WindowFullScreen);
    default:
        return m_window->setWindowStates(states | Qt::WindowMinimized);
    }
}

} // namespace kiv::app
