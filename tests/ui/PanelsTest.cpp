#include "ui/Gallery.h"
#include "ui/Workspace.h"

#include <QAbstractItemModel>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

/// What opens over the window: command palette, shortcuts sheet and event feed.
class PanelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void paletteFinds_data();
    void paletteFinds();
    void paletteCommands();
    void paletteHistory();
    void paletteGivesTheFocusBack();
    void shortcuts();
    void events();
    void eventsAreFresh();

private:
    void open();
    void openPalette(const QString &typed);
    store::ScopeRoom &scope() { return *m_workspace->store->scope(); }
    QStringList found() const;

    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

void PanelsTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
}

void PanelsTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void PanelsTest::open() {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
}

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
    m_gallery->save(u"palette"_s);
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
    openPalette(u"keyboard"_s);
    m_gallery->press(Qt::Key_Return);
    const QQuickItem *list = m_gallery->item(u"shortcutList"_s);
    QCOMPARE_GE(list->property("count").toInt(), 20);
    m_gallery->save(u"shortcuts"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"shortcutList"_s));
}

void PanelsTest::events() {
    m_workspace->backend.answer(u"GET api/v2/projects/ferry/events"_s, R"({"events":[
        {"id":4,"kind":"release","title":"Guided sign-up is live",
         "detail":"Anvil finished the last screen","created_at":"2026-03-02T09:40:00Z"},
        {"id":3,"kind":"alert","title":"Load test failed",
         "detail":"Two of twelve steps timed out","created_at":"2026-03-02T09:28:00Z"},
        {"id":2,"kind":"approval","title":"Approval needed",
         "detail":"Scout asks for the price survey","created_at":"2026-03-02T09:02:00Z"},
        {"id":1,"title":"Copy changed","created_at":"yesterday"}]})");
    open();
    m_gallery->click(u"eventsButton"_s);
    QCOMPARE(m_gallery->item(u"eventsEmpty"_s)->property("text").toString(),
             u"Pick a project to see its events"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_workspace->store->layout()->eventsOpen());

    scope().enterProject(u"ferry"_s);
    m_gallery->click(u"eventsButton"_s);
    QTRY_COMPARE(m_gallery->item(u"eventList"_s)->property("count").toInt(), 4);
    m_gallery->save(u"events"_s);
    m_gallery->setDark(true);
    m_gallery->save(u"events-dark"_s);

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

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::PanelsTest)
#include "PanelsTest.moc"
