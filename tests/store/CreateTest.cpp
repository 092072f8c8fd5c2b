// The create wizard: what it offers, what it sends, and what is left of it when something fails.

#include "StoreFixture.h"

#include <QSet>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::store;
using test::StoreFixture;

namespace {

const QString newAgent = u"POST api/v2/custom-agents"_s;
const QString newProject = u"POST api/v2/projects"_s;

/// A backend that can create the agent "heron" and the project "quay".
class Workshop : public StoreFixture {
public:
    Workshop() {
        history(u"api/v2/custom-agents/heron/chat"_s, "[]");
        history(u"api/v2/projects/quay/chat"_s, "[]");
        backend.answer(newAgent, R"({"agent":{"id":"heron"}})", 201);
        backend.answer(newProject, R"({"project":{"slug":"quay","label":"Quay"}})", 201);
    }

    CreateRoom &room() { return *store->create(); }

    /// Signs in and fills an agent in, up to the last page.
    bool fillAgent() {
        if (!signIn())
            return false;
        store->layout()->startCreate(u"agent"_s);
        room().next();
        room().setName(u"  Heron "_s);
        room().setText(u"Research"_s);
        room().next();
        room().next();
        return room().step() == CreateStep::Review;
    }

    /// From now on the backend's lists hold the agent, in the project ferry or on its own.
    void listAgent(bool inProject) {
        const QByteArray heron = R"({"id":"heron","name":"Heron","role":"Research"})";
        if (inProject)
            backend.answer(u"GET api/v2/projects/ferry/members"_s,
                           R"([{"member_kind":"agent","agent":)" + heron + "}]");
        else
            backend.answer(u"GET api/v2/custom-agents"_s, R"({"agents":[)" + heron + "]}");
    }

    QJsonObject sent(const QString &route) const { return backend.requests(route).last().body; }
};

QString idOf(const CreateChoice &choice) {
    return choice.id;
}

} // namespace

class CreateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void catalogue() {
        const CreateCatalogue all = CreateCatalogue::read();
        QSet<QString> tools;
        QSet<QString> levels;
        std::ranges::transform(all.tools, std::inserter(tools, tools.begin()), idOf);
        std::ranges::transform(all.autonomy, std::inserter(levels, levels.begin()), idOf);
        QCOMPARE(tools.size(), all.tools.size());
        QCOMPARE(levels.size(), 3);
        // Besides the one that starts from nothing.
        QVERIFY(all.agents.size() > 6);
        QVERIFY(all.projects.size() > 4);
        for (const CreateKind kind : {CreateKind::Agent, CreateKind::Project}) {
            QSet<QString> seen;
            for (const CreateTemplate &each : all.templates(kind)) {
                QVERIFY2(!seen.contains(each.id), qPrintable(each.id));
                seen.insert(each.id);
                QVERIFY(!each.icon.isEmpty() && !each.title.isEmpty() && !each.summary.isEmpty());
                QCOMPARE(each.name.isEmpty(), each.id == u"empty"_s);
                QCOMPARE(each.text.isEmpty(), each.id == u"empty"_s);
                const bool agent = kind == CreateKind::Agent;
                QVERIFY(each.text.size() <=
                        (agent ? CreateDraft::roleLimit : CreateDraft::briefLimit));
                QCOMPARE(levels.contains(each.autonomy), agent);
                QCOMPARE(each.tools.isEmpty(), !agent || each.id == u"empty"_s);
                for (const QString &tool : each.tools)
                    QVERIFY2(tools.contains(tool), qPrintable(tool));
            }
        }
    }

    void templatesFillWhatIsUntouched() {
        Workshop f;
        QVERIFY(f.signIn());
        f.store->layout()->startCreate(u"agent"_s);
        CreateRoom &room = f.room();
        room.setTemplateId(u"researcher"_s);
        QCOMPARE(room.name(), u"Researcher"_s);
        QCOMPARE(room.tools(), (QStringList{u"web"_s, u"files"_s}));
        room.setName(u"Heron"_s);
        room.toggleTool(u"mail"_s);
        room.setTemplateId(u"bookkeeper"_s);
        QCOMPARE(room.name(), u"Heron"_s);
        QCOMPARE(room.text(), u"Finance"_s);
        QCOMPARE(room.tools(), (QStringList{u"web"_s, u"files"_s, u"mail"_s}));
        QCOMPARE(room.level(), u"suggest"_s);
        // Another kind is another draft, and coming back finds the first.
        room.setKind(CreateKind::Project);
        QCOMPARE(room.name(), QString());
        QCOMPARE(room.templates().size(), 5);
        room.setKind(CreateKind::Agent);
        QCOMPARE(room.name(), u"Heron"_s);
        QCOMPARE(room.templateId(), u"bookkeeper"_s);
    }

    void pages() {
        Workshop f;
        QVERIFY(f.signIn());
        CreateRoom &room = f.room();
        f.store->layout()->startCreate();
        QCOMPARE(room.stepNumber(), 1);
        QCOMPARE(room.stepNames().size(), 4);
        room.setKind(CreateKind::Agent);
        QCOMPARE(room.stepNames().size(), 5);
        room.next();
        room.next();
        QCOMPARE(room.step(), CreateStep::Details);
        QVERIFY(room.nameError().isEmpty());
        room.next();
        QCOMPARE(room.step(), CreateStep::Details);
        QVERIFY(!room.nameError().isEmpty() && !room.textError().isEmpty());
        room.setName(u"Heron"_s);
        room.setText(u"Research"_s);
        room.next();
        QCOMPARE(room.step(), CreateStep::Tools);
        room.goTo(5);
        QCOMPARE(room.step(), CreateStep::Tools);
        room.goTo(2);
        QCOMPARE(room.step(), CreateStep::Template);
        room.back();
        room.back();
        QCOMPARE(room.step(), CreateStep::Kind);
        QCOMPARE(room.name(), u"Heron"_s);
    }

    void limits_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("count");
        QTest::addColumn<bool>("fits");
        QTest::newRow("least") << u"A"_s << u"1 of 80"_s << true;
        QTest::newRow("most") << QString(80, u'a') << u"80 of 80"_s << true;
        QTest::newRow("over") << QString(81, u'a') << u"81 of 80"_s << false;
        QTest::newRow("most, as seen")
            << u"👩‍👩‍👧"_s.repeated(80) << u"80 of 80"_s << true;
        QTest::newRow("over, as seen") << u"é́"_s.repeated(81) << u"81 of 80"_s << false;
        QTest::newRow("spaces") << u"   "_s << u"3 of 80"_s << false;
    }

    void limits() {
        QFETCH(QString, name);
        Workshop f;
        QVERIFY(f.signIn());
        f.store->layout()->startCreate(u"project"_s);
        f.room().next();
        f.room().setName(name);
        QTEST(f.room().nameCount(), "count");
        f.room().next();
        QTEST(f.room().step() == CreateStep::Review, "fits");
    }

    void createsAnAgent() {
        Workshop f;
        QVERIFY(f.signIn());
        f.store->scope()->enterProject(u"ferry"_s);
        f.store->layout()->startCreate(u"agent"_s);
        CreateRoom &room = f.room();
        QCOMPARE(room.parentName(), u"Night Ferry"_s);
        room.setTemplateId(u"researcher"_s);
        room.next();
        room.setName(u" Heron "_s);
        room.next();
        room.setLevel(u"suggest"_s);
        room.next();
        f.listAgent(true);
        f.backend.hold(newAgent);
        room.next();
        room.next(); // a second press creates nothing more
        QCOMPARE(room.phase(), CreatePhase::Sending);
        room.back();
        room.setName(u"Other"_s);
        SOON_COMPARE(f.backend.count(newAgent), 1);
        f.backend.release(newAgent);
        SOON_VERIFY(!room.isOpen());
        QCOMPARE(f.sent(newAgent),
                 (QJsonObject{{u"name"_s, u"Heron"_s},
                              {u"role"_s, u"Research"_s},
                              {u"description"_s,
                               u"Tools: Web search, Files\n"
                               u"Autonomy: Suggests only. Proposes each step and changes nothing "
                               u"by itself."_s},
                              {u"agent_type"_s, u"employee"_s},
                              {u"status"_s, u"active"_s},
                              {u"trigger_type"_s, u"manual"_s},
                              {u"project_slug"_s, u"ferry"_s}}));
        QCOMPARE(f.backend.count(newAgent), 1);
        QCOMPARE(f.store->scope()->agent(), u"heron"_s);
        QCOMPARE(f.store->scope()->project(), u"ferry"_s);
        QVERIFY(f.streaming(u"api/v2/custom-agents/heron/chat"_s, 1));
        SOON_COMPARE(f.texts().size(), 1);
        QVERIFY2(f.texts().first().contains(u"Heron"_s), qPrintable(f.texts().first()));
    }

    void createsAProject() {
        Workshop f;
        QVERIFY(f.signIn());
        f.store->layout()->startCreate(u"project"_s);
        CreateRoom &room = f.room();
        room.next();
        room.setName(u"Quay"_s);
        room.setText(u"Ships\ncome in \n"_s);
        room.next();
        f.backend.answer(u"GET api/v2/projects"_s,
                         R"({"projects":[{"slug":"quay","label":"Quay"}]})");
        f.backend.answer(u"GET api/v2/projects/quay/members"_s, "[]");
        room.next();
        SOON_VERIFY(!room.isOpen());
        QCOMPARE(f.sent(newProject),
                 (QJsonObject{{u"label"_s, u"Quay"_s}, {u"brief"_s, u"Ships\ncome in"_s}}));
        QCOMPARE(f.store->scope()->project(), u"quay"_s);
        QCOMPARE(f.store->scope()->scopeName(), u"Quay"_s);
        QVERIFY(f.streaming(u"api/v2/projects/quay/chat"_s, 1));
    }

    void warningsAreShown() {
        Workshop f;
        QVERIFY(f.fillAgent());
        f.room().setParentId(u"ferry"_s);
        f.backend.answer(newAgent,
                         R"x({"id":"heron","project_warnings":["ferry (full)","tide"]})x");
        f.listAgent(false);
        f.room().next();
        SOON_COMPARE(f.room().notice(), u"Heron created. Could not add: ferry (full), tide"_s);
        SOON_VERIFY(!f.store->scope()->standaloneAgents().isEmpty() &&
                    f.store->scope()->standaloneAgents().first().id == u"heron"_s);
        QVERIFY(f.room().isOpen());
        f.room().next();
        QVERIFY(!f.room().isOpen());
        QCOMPARE(f.backend.count(newAgent), 1);
        QCOMPARE(f.store->scope()->agent(), u"heron"_s);
        QCOMPARE(f.store->scope()->project(), QString());
    }

    void failureKeepsEverything_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("why");
        QTest::newRow("refused") << 400 << uR"({"error":"The name is taken."})"_s
                                 << u"The name is taken."_s;
        QTest::newRow("broken") << 500 << uR"({"error":"Something broke."})"_s
                                << u"Something broke."_s;
        QTest::newRow("not understood") << 201 << u"created"_s << QString();
    }

    void failureKeepsEverything() {
        QFETCH(int, status);
        QFETCH(QString, body);
        QFETCH(QString, why);
        Workshop f;
        QVERIFY(f.fillAgent());
        f.backend.answer(newAgent, body.toUtf8(), status);
        f.room().next();
        SOON_VERIFY(!f.room().failure().isEmpty());
        QVERIFY2(f.room().failure().contains(why), qPrintable(f.room().failure()));
        QCOMPARE(f.room().phase(), CreatePhase::Editing);
        QCOMPARE(f.room().step(), CreateStep::Review);
        QCOMPARE(f.room().name(), u"  Heron "_s);
        f.backend.answer(newAgent, R"({"id":"heron"})", 201);
        f.listAgent(false);
        f.room().next();
        QVERIFY(f.room().failure().isEmpty());
        SOON_VERIFY(!f.room().isOpen());
        QCOMPARE(f.store->scope()->agent(), u"heron"_s);
    }

    void createdButNotListed() {
        Workshop f;
        QVERIFY(f.fillAgent());
        f.backend.answer(u"GET api/v2/projects"_s, R"({"error":"Busy."})", 503);
        f.room().next();
        SOON_VERIFY(!f.room().failure().isEmpty());
        QCOMPARE(f.room().phase(), CreatePhase::Created);
        f.backend.answer(u"GET api/v2/projects"_s, R"({"projects":[]})");
        f.listAgent(false);
        f.room().next();
        SOON_VERIFY(!f.room().isOpen());
        QCOMPARE(f.backend.count(newAgent), 1);
        QCOMPARE(f.store->scope()->agent(), u"heron"_s);
    }

    /// The members of another project do not come: the agent is there all the same.
    void listedBesideAProjectThatFails() {
        Workshop f;
        QVERIFY(f.fillAgent());
        f.backend.answer(u"GET api/v2/projects/lantern/members"_s, R"({"error":"Busy."})", 503);
        f.listAgent(true);
        f.room().next();
        SOON_VERIFY(!f.room().isOpen());
        QCOMPARE(f.store->scope()->agent(), u"heron"_s);
        QCOMPARE(f.store->scope()->project(), u"ferry"_s);
    }

    void closingAsksBeforeItDrops() {
        Workshop f;
        QVERIFY(f.signIn());
        CreateRoom &room = f.room();
        f.store->layout()->startCreate(u"agent"_s);
        room.setTemplateId(u"builder"_s);
        room.requestClose(); // nothing typed
        QVERIFY(!room.isOpen());
        f.store->layout()->startCreate(u"agent"_s);
        // A page that an answer brings takes an untouched wizard away.
        f.store->canvas()->openLink(u"/team/ferry"_s);
        QVERIFY(!room.isOpen());
        f.store->layout()->startCreate(u"agent"_s);
        QCOMPARE(room.name(), QString());
        room.setName(u"Heron"_s);
        f.store->layout()->startCreate(u"project"_s); // one wizard at a time
        f.store->canvas()->openLink(u"/team/ferry"_s);
        QVERIFY(room.isOpen());
        QCOMPARE(room.name(), u"Heron"_s);
        room.requestClose();
        QVERIFY(room.isOpen() && room.isAsking());
        room.keepEditing();
        QCOMPARE(room.name(), u"Heron"_s);
        room.requestClose();
        room.close();
        QVERIFY(!room.isOpen() && !room.isAsking());
        QVERIFY(f.store->layout()->isFeed());
    }

    void signingOutDropsIt() {
        Workshop f;
        QVERIFY(f.fillAgent());
        f.backend.hold(newAgent);
        f.room().next();
        SOON_COMPARE(f.backend.count(newAgent), 1);
        f.store->session()->logout();
        SOON_VERIFY(!f.room().isOpen());
        f.backend.release(newAgent);
        f.settled();
        QCOMPARE(f.store->scope()->agent(), QString());
        QCOMPARE(f.room().name(), QString());
        f.store->layout()->startCreate(u"agent"_s);
        QVERIFY(!f.room().isOpen());
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
    }
};

QTEST_GUILESS_MAIN(CreateTest)
#include "CreateTest.moc"
