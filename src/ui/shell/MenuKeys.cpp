#include "ui/shell/MenuKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>

namespace kiv::ui {

namespace {

bool isSigningIn(Command command) {
    return command == Command::ShowSignIn || command == Command::ShowSignUp;
}

/// Whether a popup shows that everything else in the window waits for.
bool isWaiting(const QQuickWindow &window) {
    const QList<QQuickItem *> layers = window.contentItem()->childItems();
    for (const QQuickItem *layer : layers) {
        if (!layer->inherits("QQuickOverlay"))
            continue;
        const QList<QQuickItem *> popups = layer->childItems();
        for (const QQuickItem *item : popups) {
            if (item->isVisible() && item->parent() && item->parent()->property("modal").toBool())
                return true;
        }
    }
    return false;
}

} // namespace

MenuKeys::MenuKeys(QObject *parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event) {
    const bool isAsked = event->type() == QEvent::ShortcutOverride;
    if (!isAsked && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const Command command = commandOf(*key);
    if (command == Command::None)
        return QObject::eventFilter(watched, event);
    // Taken before the field is asked whether it wants the keys; the press itself follows.
    event->accept();
    if (!isAsked && !key->isAutoRepeat())
        m_commands->perform(command);
    return true;
}

void MenuKeys::setCommands(Commands *commands) {
    if (m_commands)
        m_commands->disconnect(this);
    m_commands = commands;
    if (commands)
        connect(commands, &Commands::menusChanged, this, &MenuKeys::learn);
    learn();
}

void MenuKeys::learn() {
    m_keys.clear();
    const QList<MenuEntry> bound = m_commands ? m_commands->bound() : QList<MenuEntry>();
    for (const MenuEntry &entry : bound) {
        for (const QString &shortcut : entry.shortcuts)
            m_keys.insert(QKeySequence(shortcut)[0], entry.command);
    }
}

Command MenuKeys::commandOf(const QKeyEvent &event) const {
    if (!m_window || QGuiApplication::focusWindow() != m_window)
        return Command::None;
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const Command command =
        m_keys.value(QKeyCombination(modifiers, Qt::Key(event.key())), Command::None);
    if (command == Command::None || isOfWindow(command) || (m_signingIn && isSigningIn(command)))
        return command;
    return isWaiting(*m_window) ? Command::None : command;
}

} // namespace kiv::ui
