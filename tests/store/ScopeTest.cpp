// The rail, the selection, and what of it survives a restart.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivGreeting;
using test::StoreFixture;

class ScopeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rail() {
        StoreFixture f;
        f.backend.answer(u"GET api/v2/projects/lantern/members"_s,
                         R"([{"agent":{"id":"scout","name":"Scout, once more"}}])");
        QVERIFY(f.signIn());
        const QList<Project> projects = f.store->scope()->projects();
        QCOMPARE(projects.size(), 2);
        QCOMPARE(projects.at(0).name, u"Night Ferry"_s);
        QCOMPARE(projects.at(0).meta, u"2 agents · active"_s);
        QCOMPARE(projects.at(1).name, u"lantern"_s);
        QCOMPARE(projects.at(1).meta, u"0 agents · active"_s);
        QVERIFY(projects.at(0).colorHex != projects.at(1).colorHex);
        // Team members, archived ones and repeats are left out; defaults stand in for names.
        QStringList agents;
        for (const Agent &agent : projects.at(0).agents)
            agents.append(agent.id + u'/' + agent.name + u'/' + agent.role);
        QCOMPARE(agents, (QStringList{u"scout/Scout/Research"_s, u"loom/Agent/agent"_s}));
        // An agent of a project is not standalone as well.
        QCOMPARE(f.store->scope()->standaloneAgents().size(), 1);
        QCOMPARE(f.store->scope()->standaloneAgents().first().id, u"ledger"_s);
        QCOMPARE(f.store->scope()->scopeName(), u"KIV"_s);
        QCOMPARE(f.store->scope()->userInitials(), u"AB"_s);
    }

    /// A picture may be of the web or on the server, and is no file of this computer.
    void picture_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("shown");
        QTest::newRow("of the backend") << u"/pictures/a.png"_s << true;
        QTest::newRow("elsewhere") << u"https://a.example/a.png"_s << true;
        for (const QString &bad : {u"file:///etc/passwd"_s, u"qrc:/x.png"_s, u"image://icon/x"_s,
                                   u"data:image/png;base64,AA"_s, u"https:x"_s})
            QTest::newRow(qPrintable(bad)) << bad << false;
    }
    void picture() {
        QFETCH(QString, address);
        QFETCH(bool, shown);
        StoreFixture f;
        f.backend.answer(u"GET api/v2/auth/me"_s,
                         R"({"id":"u","email":"a@b.example","avatar_url":")" + address.toUtf8() +
                             R"("})");
        QVERIFY(f.signIn());
        QCOMPARE(f.store->scope()->userAvatarURL(), shown ? address : QString());
    }

    void failedRailKeepsTheOld_data() {
        QTest::addColumn<QString>("route");
        QTest::newRow("projects") << u"GET api/v2/projects"_s;
        QTest::newRow("members of a project") << u"GET api/v2/projects/ferry/members"_s;
        QTest::newRow("agents") << u"GET api/v2/custom-agents"_s;
    }
    void failedRailKeepsTheOld() {
        QFETCH(QString, route);
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(route, "<html>");
        Work work;
        work.start([&](Cancel cancel) { return f.store->scope()->reloadRail(cancel); });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"background task"_s));
        SOON_VERIFY(!work.running());
        QCOMPARE(f.store->scope()->projects().size(), 2);
        QCOMPARE(f.store->scope()->projects().first().agents.size(), 2);
        QCOMPARE(f.store->scope()->standaloneAgents().size(), 1);
    }

    void targets() {
        StoreFixture f;
        ScopeRoom *scope = f.store->scope();
        QVERIFY(!scope->chatTarget());
        QVERIFY(f.signIn());
        QCOMPARE(scope->chatTarget()->streamPath(), u"api/v2/custom-agents/kiv/chat/stream"_s);
        scope->pickProject(u"ferry"_s);
        QCOMPARE(scope->project(), QString());
        scope->enterProject(u"ferry"_s);
        QCOMPARE(scope->chatTarget()->streamPath(), u"api/v2/projects/ferry/chat/stream"_s);
        QCOMPARE(scope->scopeName(), u"Night Ferry"_s);
        scope->pickAgent(u"ferry"_s, u"scout"_s);
        QCOMPARE(scope->chatTarget()->streamPath(), u"api/v2/custom-agents/scout/chat/stream"_s);
        QCOMPARE(scope->scopeName(), u"Scout"_s);
        QCOMPARE(scope->scopeKind(), ScopeKind::Agent);
        scope->pickStandaloneAgent(u"ledger"_s);
        QCOMPARE(scope->project(), QString());
        QCOMPARE(scope->scopeName(), u"Ledger"_s);
    }

    void withoutOrchestratorNobodyIsAsked() {
        StoreFixture f;
        f.backend.answer(u"GET api/v2/orchestrator"_s, "{}", 500);
        f.store->boot();
        SOON_COMPARE(f.texts().value(f.texts().size() - 1), kivGreeting);
        f.store->chat()->send(u"hello"_s);
        QCOMPARE(f.texts().last(), u"This one exists only in the prototype so far — pick a real "
                                   "project or agent to chat."_s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Idle);
    }

    /// What does not come at the start is asked for again, and only that.
    void workspaceComesLate_data() {
        QTest::addColumn<QString>("route");
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("orchestrator") << u"GET api/v2/orchestrator"_s << R"({"agent_id":"kiv"})"_ba;
        QTest::newRow("projects") << u"GET api/v2/projects"_s
                                  << R"({"projects":[{"slug":"ferry","label":"Night Ferry"}]})"_ba;
        QTest::newRow("members of a project")
            << u"GET api/v2/projects/ferry/members"_s
            << R"([{"member_kind":"agent","agent":{"id":"scout"}}])"_ba;
    }
    void workspaceComesLate() {
        QFETCH(QString, route);
        QFETCH(QByteArray, answer);
        StoreFixture f;
        f.backend.answer(route, "{}", 503);
        f.store->boot();
        SOON_COMPARE(f.texts().value(f.texts().size() - 1), kivGreeting);
        // The rest does not wait for it.
        QCOMPARE(f.store->scope()->projects().isEmpty(), route == u"GET api/v2/projects"_s);
        f.backend.answer(route, answer);
        const auto isWhole = [&] {
            const QList<Project> projects = f.store->scope()->projects();
            return f.store->chat()->connected() && !projects.isEmpty() &&
                   !projects.first().agents.isEmpty();
        };
        QVERIFY(QTest::qWaitFor([&] {
            f.clock.advance(50ms);
            return isWhole();
        }));
        QCOMPARE(f.backend.count(route), 2);
        QCOMPARE(f.backend.count(u"GET api/v2/projects"_s) +
                     f.backend.count(u"GET api/v2/orchestrator"_s),
                 3);
    }

    void savedScope_data() {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("agent");
        QTest::addColumn<QString>("restored");
        QTest::newRow("agent of a project") << u"lantern"_s << u"loom"_s << u"ferry/loom"_s;
        QTest::newRow("standalone agent") << u"ferry"_s << u"ledger"_s << u"/ledger"_s;
        QTest::newRow("agent gone") << u"lantern"_s << u"nobody"_s << u"lantern/"_s;
        QTest::newRow("project") << u"ferry"_s << QString() << u"ferry/"_s;
        QTest::newRow("all gone") << u"nothing"_s << u"nobody"_s << u"/"_s;
    }
    void savedScope() {
        QFETCH(QString, project);
        QFETCH(QString, agent);
        StoreFixture f;
        f.settings->setValue(u"zandor.project"_s, project);
        f.settings->setValue(u"zandor.agent"_s, agent);
        QVERIFY(f.signIn());
        const ScopeRoom *scope = f.store->scope();
        QTEST(QString(scope->project() + u'/' + scope->agent()), "restored");
    }

    void savedAgentIsNotThereYet() {
        StoreFixture f;
        f.settings->setValue(u"zandor.project"_s, u"ferry"_s);
        f.settings->setValue(u"zandor.agent"_s, u"loom"_s);
        f.backend.answer(u"GET api/v2/projects/ferry/members"_s, "{}", 503);
        f.store->boot();
        SOON_COMPARE(f.store->scope()->project(), u"ferry"_s);
        QCOMPARE(f.settings->value(u"zandor.agent"_s).toString(), u"loom"_s);
    }

    /// Where an agent belongs is not known before the members of every project are.
    void agentOfAProjectThatComesLate_data() {
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("saved") << true;
        QTest::newRow("entered by a link") << false;
    }
    void agentOfAProjectThatComesLate() {
        QFETCH(bool, isSaved);
        const QString members = u"GET api/v2/projects/ferry/members"_s;
        StoreFixture f;
        if (isSaved) {
            f.settings->setValue(u"zandor.project"_s, u"ferry"_s);
            f.settings->setValue(u"zandor.agent"_s, u"loom"_s);
        }
        f.backend.answer(members, "{}", 503);
        f.backend.answer(u"GET api/v2/custom-agents"_s,
                         R"({"agents":[{"id":"ledger"},{"id":"loom","name":"Loom"}]})");
        f.store->boot();
        ScopeRoom *scope = f.store->scope();
        SOON_VERIFY(f.store->chat()->connected());
        if (!isSaved)
            QVERIFY(scope->enterAgent(u"loom"_s));
        const auto isSelected = [&](const QString &name) {
            const QModelIndexList rows = scope->rail()->match(
                scope->rail()->index(0, 0), RailModel::SelectedRole, true, -1, Qt::MatchExactly);
            return rows.size() == 1 && scope->scopeName() == name &&
                   rows.first().data(RailModel::NameRole).toString() == name;
        };
        QVERIFY(isSelected(u"Loom"_s));
        QCOMPARE(scope->project(), isSaved ? u"ferry"_s : QString());
        QCOMPARE(scope->standaloneAgents().size(), isSaved ? 1 : 2);
        f.backend.answer(members, R"([{"agent":{"id":"loom","name":"Loom, awake"}}])");
        QVERIFY(QTest::qWaitFor([&] {
            f.clock.advance(50ms);
            return isSelected(u"Loom, awake"_s);
        }));
        QCOMPARE(scope->project(), u"ferry"_s);
        QCOMPARE(f.settings->value(u"zandor.project"_s).toString(), u"ferry"_s);
        QCOMPARE(f.store->chat()->connected(), scope->chatTarget());
    }

    void chosenBeforeTheSavedOneIsBack_data() {
        QTest::addColumn<QString>("project");
        QTest::newRow("a project") << u"lantern"_s;
        QTest::newRow("the orchestrator") << QString();
    }
    void chosenBeforeTheSavedOneIsBack() {
        QFETCH(QString, project);
        StoreFixture f;
        f.settings->setValue(u"zandor.agent"_s, u"loom"_s);
        f.backend.hold(u"GET api/v2/orchestrator"_s);
        f.store->boot();
        ScopeRoom *scope = f.store->scope();
        SOON_COMPARE(scope->projects().size(), 2);
        project.isEmpty() ? scope->pickGlobal() : scope->enterProject(project);
        f.backend.release(u"GET api/v2/orchestrator"_s);
        SOON_VERIFY(!f.store->session()->isEntering());
        QCOMPARE(scope->project(), project);
        QCOMPARE(scope->agent(), QString());
    }

    void scopeIsSavedOnlyWhileSignedIn() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->scope()->pickAgent(u"ferry"_s, u"scout"_s);
        QCOMPARE(f.settings->value(u"zandor.agent"_s).toString(), u"scout"_s);
        QCOMPARE(f.settings->value(u"zandor.project"_s).toString(), u"ferry"_s);
        f.store->session()->resetToAnon();
        QCOMPARE(f.settings->value(u"zandor.agent"_s).toString(), u"scout"_s);
        f.store->scope()->pickStandaloneAgent(u"ledger"_s);
        QCOMPARE(f.settings->value(u"zandor.agent"_s).toString(), u"scout"_s);

        f.restart();
        QVERIFY(f.signIn());
        QCOMPARE(f.store->scope()->agent(), u"scout"_s);
        f.store->scope()->pickGlobal();
        QVERIFY(!f.settings->contains(u"zandor.agent"_s));
        QVERIFY(!f.settings->contains(u"zandor.project"_s));
    }

    void snapshotKeepsToItself() {
        StoreFixture f;
        f.settings->setValue(u"zandor.project"_s, u"ferry"_s);
        f.settings->setValue(u"zandor.railCollapsed"_s, true);
        f.restart(AppStore::Mode::Snapshot);
        QVERIFY(!f.store->layout()->railCollapsed());
        QVERIFY(f.signIn());
        QCOMPARE(f.store->scope()->project(), QString());
        f.store->scope()->pickProject(u"lantern"_s);
        QCOMPARE(f.store->scope()->project(), u"lantern"_s);
        QCOMPARE(f.settings->value(u"zandor.project"_s).toString(), u"ferry"_s);
        QVERIFY(!f.store->events()->eventsLoading());
    }

    void eventsFollowTheProject() {
        StoreFixture f;
        QVERIFY(f.signIn());
        QCOMPARE(f.store->events()->events()->count(), 0);
        f.store->scope()->enterProject(u"ferry"_s);
        QVERIFY(f.store->events()->eventsLoading());
        SOON_COMPARE(f.store->events()->events()->count(), 1);
        QVERIFY(!f.store->events()->eventsLoading());
        f.backend.answer(u"GET api/v2/projects/ferry/events"_s, "{}", 500);
        f.store->events()->loadEvents();
        SOON_VERIFY(!f.store->events()->eventsLoading());
        QCOMPARE(f.store->events()->events()->count(), 1);

        // Those of one project never stand for another's.
        f.backend.answer(u"GET api/v2/projects/lantern/events"_s, "{}", 500);
        f.store->scope()->enterProject(u"lantern"_s);
        SOON_VERIFY(!f.store->events()->eventsLoading());
        QCOMPARE(f.store->events()->events()->count(), 0);
    }
};

QTEST_GUILESS_MAIN(ScopeTest)
#include "ScopeTest.moc"
