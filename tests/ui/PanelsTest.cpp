#include "ui/GalleryTest.h"

#include <QAbstractItemModel>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// What opens over the window or in the place of the canvas: command palette, shortcuts sheet,
/// scope and profile popovers, and the pages of events and agents.
class PanelsTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void paletteFinds_data();
    void paletteFinds();
    void paletteCommands();
    void paletteHistory();
    void paletteGivesTheFocusBack();
    void shortcuts();
    void events();
    void eventsAreFresh();
    void eventsOnTheCanvas();
    void agentsByKeys();
    void agentsByMouse();
    void agentsInANarrowWindow();
    void railSearch();
    void theme();

private:
    void openPalette(const QString &typed);
    store::ScopeRoom &scope() { return *m_workspace->store->scope(); }
    QStringList found() const;
};

void PanelsTest::openPalette(const QString &typed) {
    m_gallery->press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(m_gallery->hasFocus(u"paletteSearch"_s));
    m_gallery->type(typed);
}

/// The titles in the palette.
QStringList PanelsTest::found() const {
    const auto *model =
        m_gallery->item(u"paletteList"_s)->property("model").value<QAbstractItemModel *>();
    QStringList titles;
    for (int row = 0; row < model->rowCount(); ++row)
        titles.append(model->index(row, 0).data().toString());
    return titles;
}

void PanelsTest::paletteFinds_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("first");
    QTest::newRow("an agent") << u"ember"_s << QStringList{u"Ember"_s};
    QTest::newRow("in any case") << u"EMB"_s << QStringList{u"Ember"_s};
    QTest::newRow("a word of a name") << u"ferry"_s << QStringList{u"Night Ferry"_s};
    QTest::newRow("the beginning first") << u"la"_s << QStringList{u"Paper Lantern"_s};
    QTest::newRow("by its role") << u"research"_s << QStringList{u"Scout"_s};
    QTest::newRow("words in any order") << u"chat toggle"_s << QStringList{u"Toggle Chat Dock"_s};
    QTest::newRow("nothing") << u"zzz"_s << QStringList();
}

void PanelsTest::paletteFinds() {
    QFETCH(QString, typed);
    QFETCH(QStringList, first);
    open();
    openPalette(typed);
    QCOMPARE(found().mid(0, 1), first);
    // Return on nothing leaves the palette open.
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_gallery->find(u"paletteSearch"_s) != nullptr, first.isEmpty());
}

void PanelsTest::paletteCommands() {
    open();
    openPalette(u"sidebar"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_workspace->store->layout()->railCollapsed());

    openPalette(u"quill"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(scope().agent(), u"quill"_s);
    QCOMPARE(scope().project(), u"lantern"_s);

    // The list ends where it begins.
    openPalette(QString());
    QCOMPARE(found().first(), u"About KIV"_s);
    m_gallery->press(Qt::Key_Up);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(scope().agent(), u"i"_s);
}

void PanelsTest::paletteHistory() {
    open();
    QVERIFY(m_workspace->ask(u"How was the week?"_s, Workspace::reportAnswer(), u"report"_s));
    QVERIFY(m_workspace->ask(u"Which host?"_s, Workspace::compareAnswer(), u"compare"_s));
    openPalette(u"the week"_s);
    QCOMPARE(found(), QStringList{u"Portfolio report, week 47"_s});
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->canvas()->art(), u"report"_s);
}

void PanelsTest::paletteGivesTheFocusBack() {
    open();
    m_gallery->click(u"askField"_s);
    openPalette(u"x"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"paletteSearch"_s));
    QTRY_VERIFY(m_gallery->hasFocus(u"askField"_s));
    QCOMPARE(m_workspace->store->chat()->draft(), QString());
    // What was typed last time is gone.
    openPalette(QString());
    QCOMPARE(m_gallery->item(u"paletteSearch"_s)->property("text").toString(), QString());
}

void PanelsTest::shortcuts() {
    open();
    m_gallery->click(u"profileButton"_s);
    m_gallery->click(u"shortcutsButton"_s);
    QTRY_VERIFY(m_gallery->find(u"shortcutList"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"shortcutList"_s));
    openPalette(u"keyboard"_s);
    m_gallery->press(Qt::Key_Return);
    const QQuickItem *list = m_gallery->item(u"shortcutList"_s);
    QCOMPARE_GE(list->property("count").toInt(), 20);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"shortcutList"_s));
}

void PanelsTest::events() {
    m_workspace->backend.answer(u"GET api/v2/projects/ferry/events"_s, Workspace::events());
    open();
    m_gallery->click(u"eventsButton"_s);
    QCOMPARE(m_gallery->item(u"eventsEmpty"_s)->property("text").toString(),
             u"Pick a project to see its events"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_workspace->store->layout()->eventsOpen());

    scope().enterProject(u"ferry"_s);
    m_gallery->click(u"eventsButton"_s);
    QTRY_COMPARE(m_gallery->item(u"eventList"_s)->property("count").toInt(), 4);

    // They are the project's, not of who is talked to next.
    scope().pickGlobal();
    QTRY_COMPARE(m_gallery->item(u"eventList"_s)->property("count").toInt(), 0);
    QVERIFY(m_gallery->item(u"eventsEmpty"_s)->isVisible());

    scope().enterProject(u"glass"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_workspace->store->layout()->eventsOpen());
    m_gallery->click(u"eventsButton"_s);
    QTRY_COMPARE(m_gallery->item(u"eventsEmpty"_s)->property("text").toString(), u"Nothing yet"_s);
}

/// The end of a turn may have brought new ones.
void PanelsTest::eventsAreFresh() {
    open();
    scope().enterProject(u"ferry"_s);
    QVERIFY(m_workspace->streaming(test::ferryChat, 1));
    const QString route = u"GET api/v2/projects/ferry/events"_s;
    const int before = m_workspace->backend.count(route);
    m_workspace->store->chat()->send(u"Anything new?"_s);
    m_workspace->row(71, u"Anything new?"_s, u"user"_s);
    m_workspace->row(72, u"No."_s);
    QTRY_VERIFY(m_workspace->texts().contains(u"No."_s));
    QCOMPARE(m_workspace->backend.count(route), before);
    m_workspace->clock.advance(1300ms);
    QTRY_COMPARE(m_workspace->backend.count(route), before + 1);
}

void PanelsTest::eventsOnTheCanvas() {
    m_workspace->backend.answer(u"GET api/v2/projects/ferry/events"_s, Workspace::events());
    open();
    scope().enterProject(u"ferry"_s);
    QVERIFY(m_workspace->streaming(test::ferryChat, 1));
    const store::CanvasRoom *canvas = m_workspace->store->canvas();
    m_gallery->click(u"eventsButton"_s);
    QTRY_COMPARE(m_gallery->item(u"eventList"_s)->property("count").toInt(), 4);
    m_gallery->click(u"showEvents"_s);
    QTRY_COMPARE(canvas->state(), store::CanvasState::Panel);
    QVERIFY(!m_workspace->store->layout()->eventsOpen());
    QVERIFY(m_gallery->item(u"eventPage"_s)->hasActiveFocus());
    m_gallery->save(u"events-page"_s);
    // The focus is still there once the feed has faded out.
    QVERIFY(m_gallery->item(u"eventPage"_s)->hasActiveFocus());
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"eventPage"_s));
    QVERIFY(m_gallery->hasFocus(u"askField"_s));

    // A question takes the canvas back, and the keys that reach it work.
    openPalette(u"events"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->find(u"eventPage"_s));
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    m_gallery->type(u"How was the week?"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(canvas->state(), store::CanvasState::ThinkingSkeleton);
    QVERIFY(!m_gallery->find(u"eventPage"_s));
}

void PanelsTest::agentsByKeys() {
    open();
    openPalette(u"agents"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"agentCard:"_s));
    m_gallery->press(Qt::Key_Up); // there is nothing above KIV
    QVERIFY(m_gallery->hasFocus(u"agentCard:"_s));
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"agentCard:scout"_s));
    m_gallery->press(Qt::Key_Right);
    m_gallery->press(Qt::Key_Right);
    QVERIFY(m_gallery->hasFocus(u"agentCard:anvil"_s));
    // Down to a line with fewer cards, and on to the end of the page, which comes into view.
    m_gallery->press(Qt::Key_Down);
    QVERIFY(m_gallery->hasFocus(u"agentCard:ember"_s));
    for (int line = 0; line < 8; ++line)
        m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Right);
    QVERIFY(m_gallery->hasFocus(u"agentCard:i"_s));
    const QQuickItem *last = m_gallery->item(u"agentCard:i"_s);
    QTRY_VERIFY(last->mapToScene({0, last->height()}).y() <= m_gallery->window().height());

    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(scope().agent(), u"i"_s);
    QCOMPARE(scope().project(), u"kettle"_s);
    QVERIFY(!m_gallery->find(u"agentLines"_s));
    QVERIFY(m_gallery->hasFocus(u"askField"_s));
}

void PanelsTest::agentsByMouse() {
    open();
    m_gallery->click(u"scopeButton"_s);
    m_gallery->click(u"showAgents"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"agentCard:"_s));
    QVERIFY(!m_workspace->store->layout()->topScopeOpen());
    m_gallery->click(u"panelClose"_s);
    QTRY_VERIFY(!m_gallery->find(u"agentLines"_s));

    m_workspace->store->canvas()->openPanel(u"agents"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"agentCard:"_s));
    m_gallery->press(Qt::Key_Down);
    // The ways to begin follow the card by the tab key: talk, then call.
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Space);
    QTRY_COMPARE(scope().agent(), u"scout"_s);
    QCOMPARE(m_workspace->store->canvas()->panel(), QString());
    QVERIFY(m_gallery->item(u"toast:0"_s)->property("words").toString().contains(u"voice calls"_s));
}

void PanelsTest::agentsInANarrowWindow() {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1024, 680});
    m_workspace->store->canvas()->openPanel(u"agents"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"agentCard:"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    // Two cards in a line now.
    QVERIFY(m_gallery->hasFocus(u"agentCard:anvil"_s));
    m_gallery->press(Qt::Key_Backslash, Qt::ControlModifier);
    QTRY_COMPARE(m_gallery->item(u"agentCard:loom"_s)->mapToScene({}).y(),
                 m_gallery->item(u"agentCard:anvil"_s)->mapToScene({}).y());
    QTRY_VERIFY(m_gallery->hasFocus(u"agentCard:anvil"_s));
}

/// By typing in the list of the rail, and by its button.
void PanelsTest::railSearch() {
    open();
    m_gallery->item(u"navigator"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery->type(u"q"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"scopeSearch"_s));
    QCOMPARE(m_gallery->item(u"scopeSearch"_s)->property("text").toString(), u"q"_s);
    m_gallery->type(u"uill"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(scope().agent(), u"quill"_s);
    QTRY_VERIFY(!m_gallery->find(u"scopeSearch"_s));
    QTRY_VERIFY(m_gallery->hasFocus(u"navigator"_s));

    m_gallery->click(u"railSearch"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"scopeSearch"_s));
    QCOMPARE(m_gallery->item(u"scopeSearch"_s)->property("text").toString(), QString());
    m_gallery->press(Qt::Key_Down); // from KIV over the label to the first project, the current one
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(scope().agent(), QString());
    QCOMPARE(scope().project(), u"lantern"_s);
}

void PanelsTest::theme() {
    open();
    const auto corner = [this] { return m_gallery->grab(u"theme"_s).pixelColor(2, 2).lightness(); };
    store::AppearanceRoom *appearance = m_workspace->store->appearance();
    appearance->chooseTheme(store::Theme::System);
    QVERIFY(corner() > 200);
    appearance->setSystemDark(true);
    QTRY_VERIFY(corner() < 50);
    m_gallery->click(u"profileButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"accountRow"_s));
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Down);
    QTRY_VERIFY(m_gallery->hasFocus(u"noticesSwitch"_s));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        const bool wanted = m_workspace->store->notices()->wanted();
        m_gallery->press(key);
        QCOMPARE(m_workspace->store->notices()->wanted(), !wanted);
    }
    m_gallery->press(Qt::Key_Down);
    QTRY_VERIFY(m_gallery->item(u"themeChoice"_s)->hasActiveFocus());
    m_gallery->press(Qt::Key_Right);
    QTRY_VERIFY(corner() > 200);
    m_gallery->press(Qt::Key_Right);
    QTRY_VERIFY(corner() < 50);
    m_gallery->press(Qt::Key_Right); // there is none after it
    QCOMPARE(appearance->theme(), store::Theme::Dark);
    m_gallery->click(u"segment:Light"_s);
    QCOMPARE(appearance->theme(), store::Theme::Light);
    m_gallery->close();

    appearance->chooseTheme(store::Theme::Dark);
    m_workspace->restart();
    QVERIFY(m_workspace->store->appearance()->dark());
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::PanelsTest)
#include "PanelsTest.moc"
