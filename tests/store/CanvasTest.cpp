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

} // namespace

class CanvasTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void drawnOnceItSettles() {
        StoreFixture f;
        QVERIFY(f.ask(u"What did the agents do overnight?"_s));
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
        SOON_COMPARE(f.usage(), QStringList{u"canvas_no_data"_s});
    }

    void drawnEarlyAndOnce() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
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
        SOON_COMPARE(f.usage(), QStringList{u"canvas_scenario"_s});
        const auto context = f.backend.requests(u"POST api/v2/rum"_s).first().body.value(u"ctx"_s);
        QCOMPARE(context.toObject().value(u"intent"_s).toString(), u"report"_s);
        QVERIFY(f.msgs().index(f.msgs().count() - 1).data(MessageModel::OnCanvasRole).toBool());
    }

    void rowsOfBeforeAreNotTheAnswer() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(5, u"assistant"_s, u"old"_s) + "]");
        QVERIFY(f.ask(u"Weekly report"_s));
        f.row(5, u"old, "_s + reportBlock);
        SOON_VERIFY(f.msgs().messages().first().text.startsWith(u"old,"_s));
        f.clock.advance(10s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
    }

    void blockWithoutASceneStaysInTheText() {
        StoreFixture f;
        QVERIFY(f.ask(u"Which one?"_s));
        const QString answer =
            u"Pick:\n```view\n{\"kind\":\"choice\",\"options\":[\"a\",\"b\"]}\n```"_s;
        f.row(9, answer);
        SOON_COMPARE(f.msgs().messages().last().shown, answer);
        QCOMPARE(f.msgs().messages().last().art, QString());
    }

    void viewOfTheServer() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
        f.backend.sendRow(kivChat + u"/stream"_s,
                          R"({"id":9,"role":"assistant","content":"See the canvas.","metadata":)"
                          R"({"view":{"kind":"kpi","items":[{"label":"Tasks","value":4}]}}})");
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        QCOMPARE(f.store->canvas()->art(), u"report"_s);
        QCOMPARE(f.msgs().messages().last().shown, u"See the canvas."_s);
    }

    void newQuestionClearsTheScene() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
        QVERIFY(f.draw(9, reportBlock));
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
        QVERIFY(f.ask(u"Weekly report"_s));
        f.row(9, reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
        f.store->scope()->enterProject(u"ferry"_s);
        QVERIFY(f.store->canvas()->state() != CanvasState::BuildingScene);
        f.clock.advance(10s);
        QVERIFY(f.store->canvas()->state() != CanvasState::Scene);
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

    /// Who picks the scope that is open sees its scene until the history is there again.
    void pickedAgain() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
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
        QVERIFY(f.ask(u"Weekly report"_s));
        CanvasRoom *canvas = f.store->canvas();
        QVERIFY(f.draw(9, reportBlock));
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
};

QTEST_GUILESS_MAIN(CanvasTest)
#include "CanvasTest.moc"
