#include "ui/GalleryTest.h"

#include "app/MainMenu.h"
#include "app/WindowFrame.h"
#include "ui/shell/Notices.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// The main menu by its keys and by the mouse, and the frame of the window.
class MenuTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void everyKeyOnce();
    void accountFollowsTheSession();
    void keysWinOverTheField();
    void dialogsKeepTheKeys();
    void editing();
    void newChatAndOverseer();
    void signInByKeys();
    void menuByKeys();
    void commandsOfTheWindow();
    void about();
    void updateBanner();
    void frameIsFitted_data();
    void frameIsFitted();
    void frameIsRestored_data();
    void frameIsRestored();

private:
    store::LayoutRoom &layout() { return *m_workspace->store->layout(); }
    QString fieldText() { return m_gallery->item(u"askField"_s)->property("text").toString(); }
};

/// Keys that stand for two commands would do neither.
void MenuTest::everyKeyOnce() {
    for (const bool signedIn : {false, true}) {
        QStringList keys;
        const QList<MenuDescription> menus = app::MainMenu::build(signedIn);
        for (const MenuDescription &menu : menus) {
            for (const MenuEntry &entry : menu.entries) {
                QVERIFY2(entry.separator() || entry.command != Command::None ||
                             entry.title == u"KIV Help"_s,
                         qPrintable(entry.title));
                keys += entry.shortcuts;
            }
        }
        for (const QString &key : std::as_const(keys)) {
            QVERIFY2(QKeySequence(key)[0].key() != Qt::Key_unknown, qPrintable(key));
            QCOMPARE(keys.count(key), 1);
        }
    }
}

void MenuTest::accountFollowsTheSession() {
    const auto titles = [this] {
        QStringList found;
        const MenuDescription menu = m_gallery->commands().menus().first();
        for (const MenuEntry &entry : menu.entries)
            found.append(entry.title);
        return found;
    };
    open();
    QSignalSpy changed(&m_gallery->commands(), &Commands::menusChanged);
    QVERIFY(titles().contains(u"Log Out"_s));
    QVERIFY(!titles().contains(u"Sign In…"_s));
    m_gallery->commands().perform(Command::ShowSignIn);
    QCOMPARE(m_workspace->store->session()->authSheet(), store::AuthSheetMode::Closed);
    m_gallery->commands().perform(Command::LogOut);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::Anon);
    QVERIFY(!changed.isEmpty());
    QVERIFY(!titles().contains(u"Log Out"_s));
    QVERIFY(titles().contains(u"Sign In…"_s));
    QVERIFY(titles().contains(u"Create Account…"_s));
    // The keys are those of the new menu.
    m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
    QVERIFY(layout().railCollapsed());
    m_gallery->press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(m_workspace->store->session()->authSheet(), store::AuthSheetMode::Login);
}

/// A field takes Ctrl+K, Ctrl+D and others for keys of its own where the system has them.
void MenuTest::keysWinOverTheField() {
    open();
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
    m_gallery->type(u"half a thought"_s);
    m_gallery->press(Qt::Key_Home);
    for (const Qt::Key key : {Qt::Key_K, Qt::Key_D, Qt::Key_J, Qt::Key_J, Qt::Key_Y, Qt::Key_Y})
        m_gallery->press(key, Qt::ControlModifier);
    QCOMPARE(m_workspace->store->chat()->draft(), u"half a thought"_s);
    // Ctrl+D says why there is no call, once.
    QTRY_VERIFY(m_gallery->find(u"toast:0"_s));
    QCOMPARE(m_gallery->item(u"toast:0"_s)->property("words").toString(),
             u"This Mac cannot make voice calls — check microphone access."_s);
    QVERIFY(!m_gallery->find(u"toast:1"_s));
    QCOMPARE(m_workspace->store->call()->callHint(), QString());
}

/// What lies behind a dialog is left as it is; the window itself can be dealt with.
void MenuTest::dialogsKeepTheKeys() {
    open();
    m_gallery->click(u"askField"_s);
    m_gallery->type(u"half a thought"_s);
    m_gallery->commands().perform(Command::NewAgent);
    m_gallery->item(u"template:empty"_s);
    const QQuickItem *focused = m_gallery->window().activeFocusItem();
    for (const Qt::Key key : {Qt::Key_K, Qt::Key_J, Qt::Key_Backslash, Qt::Key_N})
        m_gallery->press(key, Qt::ControlModifier);
    QCOMPARE(m_gallery->window().activeFocusItem(), focused);
    QVERIFY(!layout().dockOpen() && !layout().railCollapsed());
    QCOMPARE(m_workspace->store->chat()->draft(), u"half a thought"_s);
    m_gallery->press(Qt::Key_F11);
    QTRY_COMPARE(m_gallery->window().visibility(), QWindow::FullScreen);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"template:empty"_s));
    m_gallery->press(Qt::Key_J, Qt::ControlModifier);
    QVERIFY(layout().dockOpen());
}

void MenuTest::editing() {
    open();
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    m_gallery->type(u"figures"_s);
    m_gallery->press(Qt::Key_A, Qt::ControlModifier);
    m_gallery->press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(fieldText(), QString());
    QCOMPARE(QGuiApplication::clipboard()->text(), u"figures"_s);
    m_gallery->press(Qt::Key_V, Qt::ControlModifier);
    m_gallery->press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(fieldText(), u"figuresfigures"_s);
    // The same from the menu, which gives the focus back first.
    m_gallery->commands().perform(Command::SelectAll);
    m_gallery->commands().perform(Command::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"figuresfigures"_s);
    m_gallery->commands().perform(Command::Cut);
    QCOMPARE(fieldText(), QString());
    m_gallery->commands().perform(Command::Undo);
    QCOMPARE(fieldText(), u"figuresfigures"_s);
}

void MenuTest::newChatAndOverseer() {
    open();
    m_gallery->click(u"railRow:ferry"_s);
    QTRY_COMPARE(m_workspace->store->scope()->project(), u"ferry"_s);
    m_gallery->press(Qt::Key_0, Qt::ControlModifier);
    QTRY_COMPARE(m_workspace->store->scope()->project(), QString());
    m_workspace->row(7, u"An old line"_s);
    QTRY_VERIFY(m_workspace->texts().contains(u"An old line"_s));
    m_gallery->press(Qt::Key_N, Qt::ControlModifier);
    QTRY_COMPARE(m_workspace->msgs().count(), 1);
}

void MenuTest::signInByKeys() {
    QVERIFY(m_workspace->bootSignedOut());
    m_gallery->open(*m_workspace->store, {1440, 900});
    const store::SessionRoom *session = m_workspace->store->session();
    m_gallery->press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(session->authSheet(), store::AuthSheetMode::Signup);
    m_gallery->press(Qt::Key_Escape);
    QTRY_COMPARE(session->authSheet(), store::AuthSheetMode::Closed);
    m_gallery->press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(session->authSheet(), store::AuthSheetMode::Login);
    // From one side of the sheet to the other, and nothing behind it moves.
    m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
    QVERIFY(!layout().railCollapsed());
    m_gallery->press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(session->authSheet(), store::AuthSheetMode::Signup);
    m_gallery->press(Qt::Key_Escape);
    QTRY_COMPARE(session->authSheet(), store::AuthSheetMode::Closed);
}

/// Opened by its key, gone through by arrows, a command of a further menu carried out.
void MenuTest::menuByKeys() {
    open();
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    m_gallery->press(Qt::Key_F10);
    QTRY_VERIFY(m_gallery->hasFocus(u"menus"_s));
    for (int line = 0; line < 3; ++line) // to File, Edit, View
        m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Right);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(layout().railCollapsed());
}

void MenuTest::commandsOfTheWindow() {
    open();
    QQuickWindow &window = m_gallery->window();
    m_gallery->press(Qt::Key_F11);
    QTRY_COMPARE(window.visibility(), QWindow::FullScreen);
    m_gallery->press(Qt::Key_F11);
    QTRY_COMPARE(window.visibility(), QWindow::Windowed);
    m_gallery->commands().perform(Command::Zoom);
    QTRY_COMPARE(window.visibility(), QWindow::Maximized);
    m_gallery->commands().perform(Command::Zoom);
    QTRY_COMPARE(window.visibility(), QWindow::Windowed);
    m_gallery->press(Qt::Key_M, Qt::ControlModifier);
    QTRY_COMPARE(window.visibility(), QWindow::Minimized);
    m_gallery->press(Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(!window.isVisible());
}

void MenuTest::about() {
    open();
    m_gallery->commands().perform(Command::About);
    const QString version = m_gallery->item(u"aboutVersion"_s)->property("text").toString();
    QVERIFY2(version.contains(AppVersion::running().display()), qPrintable(version));
    m_gallery->save(u"about"_s);
    m_gallery->commands().setDiagnostics([] { return u"KIV: 1"_s; });
    m_gallery->click(u"copyDiagnostics"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"KIV: 1"_s);
    m_gallery->click(u"showNotices"_s);
    QTRY_VERIFY(!m_gallery->find(u"aboutVersion"_s));
    // What stands under a licence must be named, down to the last of the list.
    QStringList named;
    for (const Notice &notice : Notices::all()) {
        QVERIFY2(!notice.licence.isEmpty() && !notice.holder.isEmpty(), qPrintable(notice.name));
        named.append(notice.name);
    }
    QVERIFY(named.contains(u"Qt 6"_s));
    QCOMPARE(m_gallery->item(u"noticeList"_s)->property("count").toInt(), int(named.size()));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"noticeList"_s));

    m_gallery->commands().perform(Command::About);
    QTRY_VERIFY(m_gallery->find(u"aboutVersion"_s));
    m_gallery->press(Qt::Key_Return); // on the button that closes it
    QTRY_VERIFY(!m_gallery->find(u"aboutVersion"_s));
}

void MenuTest::updateBanner() {
    open();
    store::UpdateRoom *update = m_workspace->store->update();
    update->setRunning(AppVersion::of(u"1.4"_s, {}));
    const QString feed = u"GET downloads/kiv-appcast.xml"_s;
    m_workspace->backend.answer(feed, "shortVersionString>1.4<");
    m_gallery->commands().perform(Command::CheckUpdates);
    QTRY_VERIFY(!update->checkingUpdate());
    QCOMPARE(m_workspace->backend.count(feed), 1);
    QVERIFY(!m_gallery->find(u"bannerClose"_s) && !m_gallery->find(u"toast:0"_s));
    m_workspace->backend.answer(feed, "shortVersionString>1.5.0<");
    m_gallery->commands().perform(Command::CheckUpdates);
    QQuickItem *close = m_gallery->item(u"bannerClose"_s);
    QCOMPARE(close->parentItem()->property("text").toString(), u"KIV 1.5.0 is available."_s);
    m_gallery->save(u"update-banner"_s);
    m_gallery->click(u"bannerClose"_s);
    QTRY_VERIFY(!m_gallery->find(u"bannerClose"_s));
    QVERIFY(!update->offered());
}

void MenuTest::frameIsFitted_data() {
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("fitted");
    QTest::newRow("as it was") << QRect(100, 80, 1200, 700) << QRect(100, 80, 1200, 700);
    QTest::newRow("over the edge") << QRect(1500, 900, 1200, 700) << QRect(720, 380, 1200, 700);
    QTest::newRow("above the bar") << QRect(-50, 0, 1200, 700) << QRect(0, 30, 1200, 700);
    QTest::newRow("too large") << QRect(0, 0, 5000, 3000) << QRect(0, 30, 1920, 1050);
    QTest::newRow("too small") << QRect(10, 40, 50, 20) << QRect(10, 40, 1024, 680);
}

void MenuTest::frameIsFitted() {
    QFETCH(QRect, frame);
    QTEST(app::WindowFrame::fitted(frame, QRect(0, 30, 1920, 1050), QSize(1024, 680)), "fitted");
}

void MenuTest::frameIsRestored_data() {
    QTest::addColumn<QString>("saved");
    QTest::addColumn<bool>("good");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("words") << u"a b c d"_s << false;
    QTest::newRow("too few") << u"1 2 3"_s << false;
    QTest::newRow("no size") << u"10 10 0 -5 0 0 800 600"_s << false;
    QTest::newRow("out of range") << u"99999999999 0 1 1"_s << false;
    QTest::newRow("from a screen that is gone") << u"5000 4000 1100 700 4000 3000 1 1"_s << true;
}

void MenuTest::frameIsRestored() {
    QFETCH(QString, saved);
    QFETCH(bool, good);
    m_workspace->settings->setValue(u"NSWindow Frame ZandorMain"_s, saved);
    app::WindowFrame frame(*m_workspace->settings, m_workspace->clock);
    QCOMPARE(frame.restored().has_value(), good);
    if (good)
        QVERIFY(QGuiApplication::primaryScreen()->geometry().intersects(*frame.restored()));

    // What is saved of a window is what comes back.
    QWindow window;
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    const QRect place(QPoint(0, 0), QSize(1024, 680).boundedTo(screen));
    window.setGeometry(place);
    frame.follow(&window, place);
    frame.save();
    QVERIFY(app::WindowFrame(*m_workspace->settings, m_workspace->clock).restored().has_value());
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::MenuTest)
#include "MenuTest.moc"
