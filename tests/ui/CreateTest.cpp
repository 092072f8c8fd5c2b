#include "ui/GalleryTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

/// The create wizard, used by mouse and by keyboard.
class CreateTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void icons();
    void ways_data();
    void ways();
    void agentByMouse();
    void agentByKeyboard();
    void projectByKeyboard();
    void escapeAsks();
    void limitsAreLive();
    void newsOfTheServer();

private:
    void prepare() override;
    void startAgent();
    store::CreateRoom &room() { return *m_workspace->store->create(); }
    QString words(const QString &item) const {
        return m_gallery->item(item)->property("text").toString();
    }
    void type(const QString &field, const QString &text);
    void listHeron();
};

void CreateTest::prepare() {
    m_workspace->history(u"api/v2/custom-agents/heron/chat"_s, "[]");
    m_workspace->history(u"api/v2/projects/quay/chat"_s, "[]");
    m_workspace->backend.answer(u"POST api/v2/custom-agents"_s, R"({"id":"heron"})", 201);
    m_workspace->backend.answer(u"POST api/v2/projects"_s,
                                R"({"project":{"slug":"quay","label":"Quay"}})", 201);
}

/// Opens the wizard for an agent, at its templates.
void CreateTest::startAgent() {
    m_gallery->commands().perform(Command::NewAgent);
    m_gallery->item(u"template:empty"_s);
    QTRY_VERIFY(room().step() == store::CreateStep::Template);
}

/// From now on the backend lists the new agent.
void CreateTest::listHeron() {
    m_workspace->backend.answer(u"GET api/v2/custom-agents"_s,
                                R"({"agents":[{"id":"heron","name":"Heron","role":"Research"}]})");
}

/// Types into a field that has the focus, in place of what it holds.
void CreateTest::type(const QString &field, const QString &text) {
    QTRY_VERIFY2(m_gallery->hasFocus(field), qPrintable(field));
    m_gallery->press(Qt::Key_A, Qt::ControlModifier);
    m_gallery->type(text);
}

void CreateTest::icons() {
    const auto all = store::CreateCatalogue::read();
    QStringList names;
    for (const store::CreateChoice &choice : all.tools + all.autonomy + store::CreateRoom::kinds())
        names.append(choice.icon);
    for (const store::CreateTemplate &each : all.agents + all.projects)
        names.append(each.icon);
    for (const QString &name : names)
        QVERIFY2(QFile::exists(u":/qt/qml/Kiv/Icons/svg/%1.svg"_s.arg(name)), qPrintable(name));
}

void CreateTest::ways_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("shown");
    QTest::newRow("rail") << u"rail"_s << u"template:launch"_s;
    QTest::newRow("strip") << u"strip"_s << u"template:launch"_s;
    QTest::newRow("scope") << u"scope"_s << u"kind:agent"_s;
    QTest::newRow("palette, project") << u"new pro"_s << u"template:launch"_s;
    QTest::newRow("palette, agent") << u"new ag"_s << u"template:researcher"_s;
}

void CreateTest::ways() {
    QFETCH(QString, way);
    QFETCH(QString, shown);
    open();
    if (way == u"rail"_s) {
        m_gallery->click(u"railCreate:project"_s);
    } else if (way == u"strip"_s) {
        m_workspace->store->layout()->toggleRail();
        m_gallery->click(u"stripCreate"_s);
    } else if (way == u"scope"_s) {
        m_gallery->click(u"scopeButton"_s);
        QTest::qWait(200);
        m_gallery->save(u"create-from-scope"_s);
        m_gallery->click(u"scopeCreate"_s);
    } else {
        m_gallery->press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(m_gallery->hasFocus(u"paletteSearch"_s));
        m_gallery->type(way);
        m_gallery->press(Qt::Key_Return);
    }
    QVERIFY(m_gallery->item(shown));
    QVERIFY(!m_workspace->store->layout()->topScopeOpen());
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(shown));
}

void CreateTest::agentByMouse() {
    open();
    startAgent();
    m_gallery->click(u"wizardStep1"_s);
    m_gallery->click(u"kind:project"_s);
    QCOMPARE(words(u"wizardProgress"_s), u"Step 1 of 4"_s);
    m_gallery->click(u"kind:agent"_s);
    m_gallery->click(u"wizardNext"_s);
    m_gallery->click(u"template:reporter"_s);
    m_gallery->click(u"wizardNext"_s);
    m_gallery->click(u"createName"_s);
    type(u"createName"_s, u"Heron"_s);
    m_gallery->click(u"parentButton"_s);
    m_gallery->click(u"parent:lantern"_s);
    QTRY_COMPARE(words(u"parentButton"_s), u"Paper Lantern"_s);
    QTest::qWait(200);
    m_gallery->click(u"wizardNext"_s);
    m_gallery->click(u"tool:mail"_s);
    m_gallery->click(u"tool:data"_s);
    m_gallery->click(u"level:suggest"_s);
    m_gallery->click(u"wizardNext"_s);
    // The way back keeps everything.
    m_gallery->click(u"wizardBack"_s);
    m_gallery->click(u"wizardBack"_s);
    QCOMPARE(words(u"createName"_s), u"Heron"_s);
    m_gallery->click(u"wizardNext"_s);
    m_gallery->click(u"wizardNext"_s);
    listHeron();
    m_gallery->click(u"wizardNext"_s);
    QTRY_VERIFY(!room().isOpen());
    QTRY_VERIFY(!m_gallery->find(u"wizardNext"_s));
    const QJsonObject body =
        m_workspace->backend.requests(u"POST api/v2/custom-agents"_s).last().body;
    QCOMPARE(body.value(u"name"_s).toString(), u"Heron"_s);
    QCOMPARE(body.value(u"project_slug"_s).toString(), u"lantern"_s);
    QVERIFY(body.value(u"description"_s)
                .toString()
                .startsWith(u"Tools: Files, Mail, Spreadsheets\nAutonomy: Suggests only."_s));
    QCOMPARE(m_workspace->store->scope()->agent(), u"heron"_s);
    QVERIFY(m_gallery->item(u"railRow:heron"_s));
}

void CreateTest::agentByKeyboard() {
    open();
    startAgent();
    m_gallery->press(Qt::Key_Down);
    QCOMPARE(room().templateId(), u"researcher"_s);
    m_gallery->press(Qt::Key_Return);
    type(u"createName"_s, u"Heron"_s);
    m_gallery->press(Qt::Key_Tab);
    type(u"createRole"_s, u"Research"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Space);
    m_gallery->item(u"parent:ferry"_s);
    QTest::qWait(200);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(room().parentId(), u"ferry"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"parentButton"_s));
    m_gallery->press(Qt::Key_Tab);
    for (int i = 0; i < 4 && !m_gallery->hasFocus(u"wizardNext"_s); ++i)
        m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Space);
    QTRY_VERIFY(m_gallery->hasFocus(u"tool:web"_s));
    m_gallery->press(Qt::Key_Space);
    QCOMPARE(room().tools(), QStringList{u"files"_s});
    for (int i = 0; i < 8; ++i)
        m_gallery->press(Qt::Key_Tab);
    QCOMPARE(room().level(), u"act"_s);
    m_gallery->press(Qt::Key_Up);
    QCOMPARE(room().level(), u"ask"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"reviewLines"_s));
    listHeron();
    m_gallery->press(Qt::Key_Return);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(!room().isOpen());
    QCOMPARE(m_workspace->backend.count(u"POST api/v2/custom-agents"_s), 1);
    QCOMPARE(m_workspace->store->scope()->agent(), u"heron"_s);
}

void CreateTest::projectByKeyboard() {
    open();
    m_gallery->commands().perform(Command::NewProject);
    m_gallery->item(u"template:launch"_s);
    m_gallery->press(Qt::Key_Return);
    type(u"createName"_s, u"Quay"_s);
    m_gallery->press(Qt::Key_Tab);
    type(u"createBrief"_s, u"Ships"_s);
    m_gallery->press(Qt::Key_Return); // a line of its own
    m_gallery->type(u"come in"_s);
    QCOMPARE(room().text(), u"Ships\ncome in"_s);
    QCOMPARE(m_gallery->item(u"briefNote"_s)->property("count").toString(), u"13 of 4000"_s);
    for (int i = 0; i < 4 && !m_gallery->hasFocus(u"wizardNext"_s); ++i)
        m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"reviewLines"_s));
    m_workspace->backend.answer(u"GET api/v2/projects"_s,
                                R"({"projects":[{"slug":"quay","label":"Quay"}]})");
    m_workspace->backend.answer(u"GET api/v2/projects/quay/members"_s, "[]");
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->scope()->project(), u"quay"_s);
    QVERIFY(m_gallery->item(u"railRow:quay"_s));
}

void CreateTest::escapeAsks() {
    open();
    m_gallery->click(u"railCreate:project"_s);
    m_gallery->item(u"template:launch"_s);
    m_gallery->press(Qt::Key_Return);
    type(u"createName"_s, u"Quay"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(m_gallery->hasFocus(u"keepEditing"_s));
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(m_gallery->hasFocus(u"createName"_s));
    QCOMPARE(words(u"createName"_s), u"Quay"_s);
    m_gallery->click(u"wizardClose"_s);
    m_gallery->item(u"discardDraft"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(!m_gallery->find(u"wizardNext"_s));
    QVERIFY(!room().isOpen());
    // The next one is empty.
    m_gallery->click(u"railCreate:project"_s);
    m_gallery->item(u"template:launch"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"createName"_s));
    QCOMPARE(words(u"createName"_s), QString());
}

void CreateTest::limitsAreLive() {
    open();
    startAgent();
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->hasFocus(u"createName"_s));
    m_gallery->press(Qt::Key_Return);
    QQuickItem *note = m_gallery->item(u"nameNote"_s);
    QCOMPARE(note->property("error").toString(), u"Give it a name"_s);
    type(u"createName"_s, QString(82, u'h'));
    QCOMPARE(note->property("count").toString(), u"82 of 80"_s);
    QCOMPARE(note->property("error").toString(), u"2 characters too many"_s);
    m_gallery->press(Qt::Key_Backspace);
    m_gallery->press(Qt::Key_Backspace);
    QCOMPARE(note->property("error").toString(), QString());
    QCOMPARE(room().step(), store::CreateStep::Details);
}

void CreateTest::newsOfTheServer() {
    open();
    startAgent();
    m_gallery->click(u"template:support"_s);
    for (int i = 0; i < 3; ++i)
        m_gallery->click(u"wizardNext"_s);
    m_workspace->backend.answer(u"POST api/v2/custom-agents"_s, R"({"error":"No seat is free."})",
                                402);
    m_gallery->click(u"wizardNext"_s);
    QTRY_COMPARE(words(u"createNews"_s), u"No seat is free."_s);
    m_gallery->click(u"wizardStep3"_s);
    QCOMPARE(words(u"createName"_s), u"Support"_s);
    for (int i = 0; i < 2; ++i)
        m_gallery->click(u"wizardNext"_s);
    m_workspace->backend.answer(u"POST api/v2/custom-agents"_s,
                                R"x({"id":"heron","project_warnings":["project ferry (full)"]})x");
    listHeron();
    m_gallery->click(u"wizardNext"_s);
    QTRY_COMPARE(words(u"createNews"_s), u"Support created. Could not add: project ferry (full)"_s);
    QTRY_COMPARE(words(u"wizardNext"_s), u"Open the chat"_s);
    QTRY_VERIFY(m_gallery->item(u"wizardNext"_s)->isEnabled());
    m_gallery->click(u"wizardNext"_s);
    QTRY_COMPARE(m_workspace->store->scope()->agent(), u"heron"_s);
    QCOMPARE(m_workspace->backend.count(u"POST api/v2/custom-agents"_s), 2);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::CreateTest)
#include "CreateTest.moc"
