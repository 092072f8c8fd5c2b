// From an answer to what the canvas shows, and when.

#include "StoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::reportBlock;
using test::rowJson;
using test::StoreFixture;

Q_DECLARE_METATYPE(std::function<void(StoreFixture &)>)

namespace {

const QString hint = u"No data to draw in this answer — ask for the numbers as a table or a list"_s;

QStringList usage(const StoreFixture &f) {
    QStringList names;
    for (const auto &request : f.backend.requests(u"POST api/v2/rum"_s))
        names.append(request.body.value(u"name"_s).toString());
    return names;
}

} // namespace

class CanvasTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void drawnOnceItSettles() {
        StoreFixture f;
        QVERIFY(ask(f, u"What did the agents do overnight?"_s));
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->phase(), Phase::Thinking);
        QCOMPARE(canvas->state(), CanvasState::ThinkingSkeleton);
        QCOMPARE(canvas->skeletonShape(), SkeletonShape::Rows);
        for (int piece = 1; piece <= 10; ++piece) {
            f.row(9, u"word "_s.repeated(piece));
            SOON_COMPARE(f.msgs().messages().last().text.size(), 5 * piece);
            f.clock.advance(300ms);
            QCOMPARE(canvas->phase(), Phase::Thinking);
        }
        f.clock.advance(899ms);
        QCOMPARE(canvas->phase(), Phase::Thinking);
        f.clock.advance(1ms);
        QCOMPARE(canvas->phase(), Phase::Idle);
        QCOMPARE(canvas->state(), CanvasState::Hint);
        QCOMPARE(canvas->canvasHint(), hint);
        SOON_COMPARE(usage(f), QStringList{u"canvas_no_data"_s});
    }

    void drawnEarlyAndOnce() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->skeletonShape(), SkeletonShape::Cards);
        f.row(9, u"Here it is:\n"_s + reportBlock.chopped(4));
        const auto bubble = [&f] {
            return f.msgs().index(f.msgs().count() - 1).data(MessageModel::BodyRole).toString();
        };
        SOON_COMPARE(bubble(), u"Here it is:"_s);
        QCOMPARE(canvas->phase(), Phase::Thinking);

        f.row(9, u"Here it is:\n"_s + reportBlock);
        SOON_COMPARE(canvas->phase(), Phase::Building);
        QCOMPARE(canvas->state(), CanvasState::BuildingScene);
        QCOMPARE(canvas->canvasTitle(), u"Week 47"_s);
        const int vis = canvas->vis();
        f.clock.advance(500ms);
        QCOMPARE(canvas->phase(), Phase::Done);
        QCOMPARE(canvas->vis(), vis + 1);
        QVERIFY(canvas->animated());

        // Prose goes on, the canvas stands.
        f.row(9, u"Here it is:\n"_s + reportBlock + u"\nThat was the week."_s);
        SOON_VERIFY(f.msgs().messages().last().text.endsWith(u"week."_s));
        QSignalSpy drawn(canvas, &CanvasRoom::artSceneChanged);
        f.clock.advance(5s);
        QCOMPARE(drawn.count(), 0);
        QCOMPARE(canvas->vis(), vis + 1);
        QVERIFY(!canvas->awaitingAnswer());
        QCOMPARE(canvas->history()->count(), 1);
        SOON_COMPARE(usage(f), QStringList{u"canvas_scenario"_s});
        const auto context = f.backend.requests(u"POST api/v2/rum"_s).first().body.value(u"ctx"_s);
        QCOMPARE(context.toObject().value(u"intent"_s).toString(), u"report"_s);
        QVERIFY(f.msgs().index(f.msgs().count() - 1).data(MessageModel::OnCanvasRole).toBool());
    }

    void rowsOfBeforeAreNotTheAnswer() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(5, u"assistant"_s, u"old"_s) + "]");
        QVERIFY(ask(f, u"Weekly report"_s));
        f.row(5, u"old, "_s + reportBlock);
        SOON_VERIFY(f.msgs().messages().first().text.startsWith(u"old,"_s));
        f.clock.advance(10s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
    }

    void blockWithoutASceneStaysInTheText() {
        StoreFixture f;
        QVERIFY(ask(f, u"Which one?"_s));
        const QString answer =
            u"Pick:\n```view\n{\"kind\":\"choice\",\"options\":[\"a\",\"b\"]}\n```"_s;
        f.row(9, answer);
        SOON_COMPARE(f.msgs().messages().last().shown, answer);
        QCOMPARE(f.msgs().messages().last().art, QString());
    }

    void viewOfTheServer() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        f.backend.sendRow(kivChat + u"/stream"_s,
                          R"({"id":9,"role":"assistant","content":"See the canvas.","metadata":)"
                          R"({"view":{"kind":"kpi","items":[{"label":"Tasks","value":4}]}}})");
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        QCOMPARE(f.store->canvas()->art(), u"report"_s);
        QCOMPARE(f.msgs().messages().last().shown, u"See the canvas."_s);
    }

    void newQuestionClearsTheScene() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        f.row(9, reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        f.clock.advance(2s);
        f.store->chat()->send(u"And now?"_s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
        QCOMPARE(f.store->canvas()->art(), QString());
        QVERIFY(!f.msgs().index(2).data(MessageModel::OnCanvasRole).toBool());

        // The same figures again are an answer too.
        f.row(11, reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        QCOMPARE(f.store->canvas()->history()->count(), 2);
    }

    void sceneStaysWithItsScope() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        f.row(9, reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        f.store->scope()->enterProject(u"ferry"_s);
        QVERIFY(f.store->canvas()->state() != CanvasState::BuildingScene);
        f.clock.advance(10s);
        QVERIFY(f.store->canvas()->state() != CanvasState::Scene);
    }

    void restored_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("state");
        QTest::newRow("scene") << reportBlock << int(CanvasState::Scene);
        QTest::newRow("nothing to draw") << u"All quiet."_s << int(CanvasState::Hint);
        QTest::newRow("page") << u"[Board](/project/ferry)"_s << int(CanvasState::Empty);
    }
    void restored() {
        QFETCH(QString, answer);
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"Weekly report"_s) + "," +
                               rowJson(2, u"assistant"_s, answer) + "]");
        QVERIFY(f.signIn());
        CanvasRoom *canvas = f.store->canvas();
        QTEST(int(canvas->state()), "state");
        QVERIFY(!canvas->animated());
        QCOMPARE(canvas->history()->count(), 0);
        if (canvas->state() == CanvasState::Scene)
            QCOMPARE(canvas->query(), u"Weekly report"_s);
    }

    void followedLinks_data() {
        QTest::addColumn<QString>("link"); // PLATFORM stands for the backend's address
        QTest::addColumn<QString>("browser");
        QTest::newRow("a path of a page") << u"/team/ferry"_s << QString();
        QTest::newRow("a page") << u"PLATFORM/p/ferry?x=1"_s << QString();
        QTest::newRow("another path") << u"/downloads/"_s << u"PLATFORM/downloads/"_s;
        QTest::newRow("elsewhere")
            << u"https://kiv.example/team/ferry"_s << u"https://kiv.example/team/ferry"_s;
        QTest::newRow("a letter") << u"mailto:ada@example.org"_s << u"mailto:ada@example.org"_s;
    }
    void followedLinks() {
        QFETCH(QString, link);
        QFETCH(QString, browser);
        StoreFixture f;
        QVERIFY(f.signIn());
        const QString platform = f.backend.url().toString();
        const QUrl rest = f.store->canvas()->openLink(link.replace(u"PLATFORM"_s, platform));
        QCOMPARE(rest.toString(), browser.replace(u"PLATFORM"_s, platform));
        QCOMPARE(f.store->canvas()->state(),
                 browser.isEmpty() ? CanvasState::Page : CanvasState::Empty);
    }

    void linkedPage() {
        StoreFixture f;
        QVERIFY(ask(f, u"Where do I see it?"_s));
        f.row(9, u"On [the board](/project/ferry?tab=tasks)."_s);
        SOON_COMPARE(f.msgs().count(), 3);
        f.clock.advance(1200ms);
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->state(), CanvasState::Page);
        QCOMPARE(canvas->pageView().url, f.backend.url().resolved(u"/project/ferry?tab=tasks"_s));
        QCOMPARE(canvas->history()->count(), 1);
        QCOMPARE(canvas->history()->at(0).title, u"Project Work"_s);
        SOON_COMPARE(usage(f), QStringList{u"canvas_open"_s});
        const auto context = f.backend.requests(u"POST api/v2/rum"_s).first().body.value(u"ctx"_s);
        QCOMPARE(context.toObject().value(u"page"_s).toString(), u"Project Work"_s);

        // A question takes it away, the history brings it back.
        f.store->chat()->send(u"Weekly report"_s);
        QCOMPARE(canvas->state(), CanvasState::ThinkingSkeleton);
        f.row(11, reportBlock);
        SOON_COMPARE(canvas->phase(), Phase::Building);
        f.clock.advance(2s);
        canvas->openHistory(1);
        QCOMPARE(canvas->state(), CanvasState::Page);
        QCOMPARE(canvas->art(), QString());
        QCOMPARE(canvas->query(), u"Where do I see it?"_s);
        QCOMPARE(canvas->history()->count(), 3);
        QCOMPARE(canvas->history()->at(0).page, canvas->history()->at(2).page);
        canvas->openHistory(1);
        QCOMPARE(canvas->state(), CanvasState::Scene);
    }

    /// Scenes and pages, back and forth, without new entries; a question is one step on.
    void stepsThroughTheHistory() {
        StoreFixture f;
        QVERIFY(ask(f, u"Where do I see it?"_s));
        f.row(9, u"On [the board](/project/ferry?tab=tasks)."_s);
        SOON_COMPARE(f.msgs().count(), 3);
        f.clock.advance(1200ms);
        CanvasRoom *canvas = f.store->canvas();
        QSignalSpy steps(canvas, &CanvasRoom::stepsChanged);
        QVERIFY(!canvas->hasEarlier());
        f.store->chat()->send(u"Weekly report"_s);
        QVERIFY(canvas->hasEarlier());
        QVERIFY(!steps.isEmpty());
        f.row(11, reportBlock);
        SOON_COMPARE(canvas->phase(), Phase::Building);
        f.clock.advance(2s);
        const QString source = canvas->sourceMessageId();

        canvas->stepBack();
        QCOMPARE(canvas->state(), CanvasState::Page);
        QCOMPARE(canvas->query(), u"Where do I see it?"_s);
        canvas->stepBack();
        QCOMPARE(canvas->state(), CanvasState::Page);
        QVERIFY(!canvas->hasEarlier());
        canvas->stepForward();
        QCOMPARE(canvas->state(), CanvasState::Scene);
        QVERIFY(!canvas->animated());
        QCOMPARE(canvas->canvasTitle(), u"Week 47"_s);
        QCOMPARE(canvas->sourceMessageId(), source);
        canvas->stepForward();
        QVERIFY(!canvas->hasLater());
        QCOMPARE(canvas->history()->count(), 2);

        // The skeleton of a new question stands before the newest entry.
        f.store->chat()->send(u"And now?"_s);
        QVERIFY(!canvas->hasLater());
        canvas->stepBack();
        QCOMPARE(canvas->canvasTitle(), u"Week 47"_s);
        f.row(13, QString(reportBlock).replace(u"47"_s, u"48"_s));
        SOON_COMPARE(canvas->canvasTitle(), u"Week 48"_s);
        QCOMPARE(canvas->history()->count(), 3);
    }

    /// Who picks the scope that is open sees its scene until the history is there again.
    void pickedAgain() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        f.row(9, reportBlock);
        CanvasRoom *canvas = f.store->canvas();
        SOON_COMPARE(canvas->phase(), Phase::Building);
        f.clock.advance(2s);
        QCOMPARE(canvas->state(), CanvasState::Scene);
        f.history(kivChat, '[' + rowJson(8, u"user"_s, u"Weekly report"_s) + ',' +
                               rowJson(9, u"assistant"_s, reportBlock) + ']');
        QSignalSpy states(canvas, &CanvasRoom::stateChanged);
        f.store->scope()->pickGlobal();
        QCOMPARE(canvas->phase(), Phase::Idle);
        SOON_COMPARE(canvas->phase(), Phase::Done);
        QCOMPARE(states.size(), 0);
        f.store->scope()->pickGlobal();
        f.store->scope()->enterProject(u"ferry"_s);
        QCOMPARE(canvas->state(), CanvasState::Empty);
    }

    void panelIsLeft_data() {
        QTest::addColumn<std::function<void(StoreFixture &)>>("leave");
        const auto row = [](const char *name, const std::function<void(StoreFixture &)> &leave) {
            QTest::newRow(name) << leave;
        };
        row("a question", [](StoreFixture &f) { f.store->chat()->send(u"And now?"_s); });
        row("another scope", [](StoreFixture &f) { f.store->scope()->enterProject(u"ferry"_s); });
        row("the same scope", [](StoreFixture &f) { f.store->scope()->pickGlobal(); });
        row("the history", [](StoreFixture &f) { f.store->canvas()->openHistory(0); });
        row("a message", [](StoreFixture &f) {
            f.store->canvas()->showMessageCanvas(f.msgs().messages().last().id.toString());
        });
        row("by itself", [](StoreFixture &f) { f.store->canvas()->closePanel(); });
        row("signing out", [](StoreFixture &f) { f.store->session()->resetToAnon(); });
    }
    void panelIsLeft() {
        QFETCH(std::function<void(StoreFixture &)>, leave);
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        CanvasRoom *canvas = f.store->canvas();
        f.row(9, reportBlock);
        SOON_VERIFY(canvas->phase() == Phase::Building);
        f.clock.advance(2s);
        SOON_VERIFY(canvas->state() == CanvasState::Scene);
        f.store->layout()->openAccount();
        f.store->layout()->startCreate(u"agent"_s);
        canvas->openPanel(u"agents"_s);
        QCOMPARE(canvas->state(), CanvasState::Panel);
        QVERIFY(!f.store->layout()->isAccount() && !f.store->layout()->isCreating());
        QCOMPARE(canvas->art(), QString());
        leave(f);
        QCOMPARE(canvas->panel(), QString());
        QVERIFY(canvas->state() != CanvasState::Panel);
    }

    void historyKeepsTwenty() {
        StoreFixture f;
        QVERIFY(f.signIn());
        CanvasRoom *canvas = f.store->canvas();
        for (int turn = 1; turn <= 25; ++turn) {
            f.store->chat()->send(u"Question %1"_s.arg(turn));
            f.row(100 + turn, QString(reportBlock).replace(u"Week 47"_s, u"Week %1"_s.arg(turn)));
            SOON_COMPARE(canvas->phase(), Phase::Building);
            f.clock.advance(2s);
        }
        QCOMPARE(canvas->history()->count(), HistoryModel::limit);
        QCOMPARE(canvas->history()->at(0).query, u"Question 25"_s);
        QCOMPARE(canvas->history()->at(19).query, u"Question 6"_s);

        canvas->openHistory(19);
        QCOMPARE(canvas->phase(), Phase::Done);
        QVERIFY(!canvas->animated());
        QCOMPARE(canvas->query(), u"Question 6"_s);
        QCOMPARE(canvas->canvasTitle(), u"Week 6"_s);
        QCOMPARE(canvas->history()->count(), HistoryModel::limit);
        QCOMPARE(canvas->history()->at(0).query, u"Question 6"_s);
        canvas->openHistory(20);
        canvas->openHistory(-1);
        QCOMPARE(canvas->query(), u"Question 6"_s);
    }

    void signOutTakesEverything() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        f.row(9, reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        f.clock.advance(2s);
        QCOMPARE(f.store->canvas()->history()->count(), 1);
        f.store->session()->resetToAnon();
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->state(), CanvasState::SignedOut);
        QCOMPARE(canvas->art(), QString());
        QCOMPARE(canvas->query(), QString());
        QCOMPARE(canvas->history()->count(), 0);
        QVERIFY(!canvas->hasEarlier());
    }

    void messageLeadsToItsScene() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"Weekly report"_s) + "," +
                               rowJson(2, u"assistant"_s, reportBlock) + "," +
                               rowJson(3, u"user"_s, u"Thanks"_s) + "," +
                               rowJson(4, u"assistant"_s, u"Any time."_s) + "]");
        QVERIFY(f.signIn());
        QCOMPARE(f.store->canvas()->state(), CanvasState::Hint);
        const QModelIndex answer = f.msgs().index(1);
        QCOMPARE(answer.data(MessageModel::CardTitleRole).toString(), u"Week 47"_s);
        QCOMPARE(answer.data(MessageModel::CardArtRole).toString(), u"report"_s);
        f.store->canvas()->showMessageCanvas(answer.data(MessageModel::MessageIdRole).toString());
        QCOMPARE(f.store->canvas()->state(), CanvasState::Scene);
        QCOMPARE(f.store->canvas()->query(), u"Weekly report"_s);
        QVERIFY(answer.data(MessageModel::OnCanvasRole).toBool());

        // A stream that comes back without news leaves it there.
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.store->canvas()->state(), CanvasState::Scene);
        QVERIFY(answer.data(MessageModel::OnCanvasRole).toBool());

        // Neither does one that brings a link to a page: nobody asked for it here.
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"Weekly report"_s) + "," +
                               rowJson(2, u"assistant"_s, reportBlock) + "," +
                               rowJson(5, u"assistant"_s, u"[Board](/project/ferry)"_s) + "]");
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.texts().last(), u"[Board](/project/ferry)"_s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Scene);
    }

    void reopenedInTheMiddleOfATurn() {
        StoreFixture f;
        QVERIFY(ask(f, u"Weekly report"_s));
        f.row(9, reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        f.clock.advance(2s);
        CanvasRoom *canvas = f.store->canvas();
        f.store->chat()->send(u"And now?"_s);
        canvas->openHistory(0);
        QCOMPARE(canvas->query(), u"Weekly report"_s);

        // The answer belongs to its own question …
        f.row(11, QString(reportBlock).replace(u"47"_s, u"48"_s));
        SOON_COMPARE(canvas->canvasTitle(), u"Week 48"_s);
        QCOMPARE(canvas->query(), u"And now?"_s);
        QCOMPARE(canvas->history()->at(0).query, u"And now?"_s);

        // … and once it is drawn, settling does not take the canvas back.
        canvas->openHistory(2);
        const int entries = canvas->history()->count();
        f.clock.advance(5s);
        QVERIFY(!canvas->awaitingAnswer());
        QCOMPARE(canvas->canvasTitle(), u"Week 47"_s);
        QCOMPARE(canvas->history()->count(), entries);
        QCOMPARE(canvas->history()->at(0).title, u"Week 47"_s);
    }

private:
    /// Signs in and asks; the question is stored as row 7.
    bool ask(StoreFixture &f, const QString &question) {
        if (!f.signIn())
            return false;
        const QString post = u"POST "_s + kivChat;
        f.backend.answer(post, R"({"message":)" + rowJson(7, u"user"_s, question) + "}");
        f.store->chat()->send(question);
        return test::soon([&] { return f.msgs().rowOfServerID(7) >= 0; });
    }
};

QTEST_GUILESS_MAIN(CanvasTest)
#include "tst_canvas.moc"
