// What the canvas goes back to: its history, the scene of a message, and what an opened chat left.

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

class CanvasHistoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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

    void linkedPage() {
        StoreFixture f;
        QVERIFY(f.ask(u"Where do I see it?"_s));
        f.row(9, u"On [the board](/project/ferry?tab=tasks)."_s);
        SOON_COMPARE(f.msgs().count(), 3);
        f.clock.advance(1200ms);
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->state(), CanvasState::Page);
        QCOMPARE(canvas->pageView().url, f.backend.url().resolved(u"/project/ferry?tab=tasks"_s));
        QCOMPARE(canvas->history()->count(), 1);
        QCOMPARE(canvas->history()->at(0).title, u"Project Work"_s);
        SOON_COMPARE(f.usage(), QStringList{u"canvas_open"_s});
        const auto context = f.backend.requests(u"POST api/v2/rum"_s).first().body.value(u"ctx"_s);
        QCOMPARE(context.toObject().value(u"page"_s).toString(), u"Project Work"_s);

        // A question takes it away, the history brings it back.
        f.store->chat()->send(u"Weekly report"_s);
        QCOMPARE(canvas->state(), CanvasState::ThinkingSkeleton);
        QVERIFY(f.draw(11, reportBlock));
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
        QVERIFY(f.ask(u"Where do I see it?"_s));
        f.row(9, u"On [the board](/project/ferry?tab=tasks)."_s);
        SOON_COMPARE(f.msgs().count(), 3);
        f.clock.advance(1200ms);
        CanvasRoom *canvas = f.store->canvas();
        QSignalSpy steps(canvas, &CanvasRoom::stepsChanged);
        QVERIFY(!canvas->hasEarlier());
        f.store->chat()->send(u"Weekly report"_s);
        QVERIFY(canvas->hasEarlier());
        QVERIFY(!steps.isEmpty());
        QVERIFY(f.draw(11, reportBlock));
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

    /// A scene names who drew it also where somebody else is talked to, but leads to no message.
    void reopenedInAnotherChat() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
        QVERIFY(f.draw(9, reportBlock));
        CanvasRoom *canvas = f.store->canvas();
        const SceneSource source = canvas->source();
        const QString time = canvas->sourceTime();
        QVERIFY(!time.isEmpty());
        f.store->scope()->enterProject(u"ferry"_s);
        QVERIFY(f.streaming(test::ferryChat, 1));
        QCOMPARE(canvas->source(), SceneSource());

        canvas->openHistory(0);
        canvas->stepBack();
        for (int visit = 0; visit < 2; ++visit, canvas->stepForward()) {
            QCOMPARE(canvas->state(), CanvasState::Scene);
            QCOMPARE(canvas->source().name, u"KIV"_s);
            QCOMPARE(canvas->source(), source);
            QCOMPARE(canvas->sourceTime(), time);
            QCOMPARE(canvas->sourceMessageId(), QString());
        }
        f.store->chat()->send(u"And here?"_s);
        QVERIFY(f.draw(11, reportBlock));
        QCOMPARE(canvas->source().kind, ScopeKind::Project);
        QCOMPARE(canvas->source().name, f.store->scope()->scopeName());
        QVERIFY(!canvas->sourceMessageId().isEmpty());
    }

    void historyKeepsTwenty() {
        StoreFixture f;
        QVERIFY(f.signIn());
        CanvasRoom *canvas = f.store->canvas();
        for (int turn = 1; turn <= 25; ++turn) {
            f.store->chat()->send(u"Question %1"_s.arg(turn));
            QVERIFY(f.draw(100 + turn,
                           QString(reportBlock).replace(u"Week 47"_s, u"Week %1"_s.arg(turn))));
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
        QVERIFY(f.ask(u"Weekly report"_s));
        QVERIFY(f.draw(9, reportBlock));
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
};

QTEST_GUILESS_MAIN(CanvasHistoryTest)
#include "CanvasHistoryTest.moc"
