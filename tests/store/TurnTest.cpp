// One question and its answer: how the canvas moves through its states, and what ends a turn.

#include "StoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::kivPost;
using test::reportBlock;
using test::rowJson;
using test::StoreFixture;

namespace {

const QString question = u"What is planned?"_s;
const QString table = u"| Task | Hours |\n|---|---|\n| Sails | 12 |\n| Hull | 30 |"_s;

/// The stream brings a row whose text has become `text`.
bool arrives(StoreFixture &f, qint64 id, const QString &text) {
    f.row(id, text);
    return test::soon([&] {
        const qsizetype row = f.msgs().rowOfServerID(id);
        return row >= 0 && f.msgs().messages().at(row).text == text;
    });
}

qsizetype drawings(const StoreFixture &f) {
    return f.usage().count(u"canvas_scenario"_s);
}

} // namespace

class TurnTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void endedFromOutside_data() {
        QTest::addColumn<bool>("drawing");
        QTest::addColumn<std::function<void(StoreFixture &)>>("event");
        const auto add = [](const char *name, const std::function<void(StoreFixture &)> &event) {
            for (const bool drawing : {false, true})
                QTest::addRow("%s while %s", name, drawing ? "building" : "thinking")
                    << drawing << event;
        };
        add("stopped", [](StoreFixture &f) { f.store->chat()->stopLive(); });
        add("post fails", [](StoreFixture &f) { f.backend.release(kivPost); });
        add("connected anew", [](StoreFixture &f) { f.store->chat()->connectChat(); });
        add("scope picked", [](StoreFixture &f) { f.store->scope()->enterProject(u"ferry"_s); });
        add("signed out", [](StoreFixture &f) { f.store->session()->resetToAnon(); });
    }
    void endedFromOutside() {
        QFETCH(bool, drawing);
        QFETCH(std::function<void(StoreFixture &)>, event);
        StoreFixture f;
        QVERIFY(f.signIn());
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->phase(), Phase::Idle);
        f.backend.answer(kivPost, "{}", 500);
        f.backend.hold(kivPost);
        f.store->chat()->send(u"Weekly report"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        QCOMPARE(canvas->phase(), Phase::Thinking);
        QVERIFY(canvas->artSkeleton());
        QVERIFY(canvas->awaitingAnswer());
        QVERIFY(f.store->chat()->liveWaiting());
        if (drawing) {
            f.row(9, reportBlock);
            SOON_COMPARE(canvas->phase(), Phase::Building);
            QVERIFY(!f.store->chat()->liveWaiting());
        }
        event(f);
        SOON_COMPARE(canvas->phase(), Phase::Idle);
        QVERIFY(!canvas->artSkeleton());
        QVERIFY(!canvas->awaitingAnswer());
        QVERIFY(!f.store->chat()->liveWaiting());
        QVERIFY(!f.store->chat()->canStop());
        // Nothing of the turn comes later.
        f.clock.advance(170s);
        QCOMPARE(canvas->phase(), Phase::Idle);
        QVERIFY(!canvas->awaitingAnswer());
    }

    void answered_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<Phase>("early");
        QTest::addColumn<CanvasState>("settled");
        QTest::newRow("block") << u"Look:\n"_s + reportBlock << Phase::Building
                               << CanvasState::Scene;
        QTest::newRow("half a block")
            << u"Look:\n"_s + reportBlock.chopped(3) << Phase::Thinking << CanvasState::Hint;
        QTest::newRow("table, blank line after it")
            << table + u"\n\n"_s << Phase::Building << CanvasState::Scene;
        QTest::newRow("table, prose after it")
            << table + u"\nThat is all"_s << Phase::Building << CanvasState::Scene;
        QTest::newRow("table, options after it")
            << table + u"\nOPTIONS: More | Less"_s << Phase::Thinking << CanvasState::Scene;
        QTest::newRow("table, a row may follow") << table << Phase::Thinking << CanvasState::Scene;
        QTest::newRow("table, the next row began")
            << table + u"\n| Rud"_s << Phase::Thinking << CanvasState::Scene;
        QTest::newRow("list") << u"- Sails: 12\n- Hull: 30\n- Mast: 4\n\nDone."_s << Phase::Thinking
                              << CanvasState::Scene;
        QTest::newRow("prose") << u"All is well."_s << Phase::Thinking << CanvasState::Hint;
        QTest::newRow("block without an art")
            << u"```view\n{\"kind\":\"gauge\",\"series\":[{\"points\":[\"a\"]}]}\n```"_s
            << Phase::Thinking << CanvasState::Hint;
    }
    /// What is whole is drawn at once, the rest when nothing came for 1.2 seconds.
    void answered() {
        QFETCH(QString, answer);
        StoreFixture f;
        QVERIFY(f.ask(question));
        CanvasRoom *canvas = f.store->canvas();
        QVERIFY(arrives(f, 9, answer));
        QTEST(canvas->phase(), "early");
        f.clock.advance(1199ms);
        QVERIFY(canvas->awaitingAnswer());
        f.clock.advance(1ms);
        QVERIFY(!canvas->awaitingAnswer());
        f.clock.advance(500ms);
        QTEST(canvas->state(), "settled");
        QCOMPARE(canvas->artSkeleton(), false);
        const bool drawn = canvas->state() == CanvasState::Scene;
        QCOMPARE(canvas->phase(), drawn ? Phase::Done : Phase::Idle);
        QCOMPARE(canvas->history()->count(), drawn ? 1 : 0);
        SOON_COMPARE(f.backend.count(u"POST api/v2/rum"_s), 1);
        QCOMPARE(drawings(f), drawn ? 1 : 0);
    }

    void earlyTableThatGrewIsDrawnAnew() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        CanvasRoom *canvas = f.store->canvas();
        QVERIFY(arrives(f, 9, table + u"\n\n"_s));
        QCOMPARE(canvas->artScene().coRows.size(), 2);
        QVERIFY(arrives(f, 9, table + u"\n| Rudder | 7 |\n| Keel | 9 |"_s));
        QCOMPARE(canvas->artScene().coRows.size(), 2);
        // Its marks move; the scene does not come in once more.
        f.clock.advance(500ms);
        QVERIFY(canvas->animated());
        QCOMPARE(canvas->state(), CanvasState::Scene);
        QSignalSpy states(canvas, &CanvasRoom::stateChanged);
        f.clock.advance(1200ms);
        QCOMPARE(canvas->artScene().coRows.size(), 4);
        QVERIFY(!canvas->animated());
        QCOMPARE(states.count(), 0);
        QCOMPARE(canvas->history()->count(), 1);
        SOON_COMPARE(drawings(f), 1);
    }

    /// The canvas that the person turned to meanwhile stays; the history has the whole table.
    void earlyTableThatGrewOutOfSight() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        CanvasRoom *canvas = f.store->canvas();
        QVERIFY(arrives(f, 9, table + u"\n\n"_s));
        canvas->openLink(u"/team/ferry"_s);
        QCOMPARE(canvas->state(), CanvasState::Page);
        QVERIFY(arrives(f, 9, table + u"\n| Rudder | 7 |"_s));
        f.clock.advance(2s);
        QVERIFY(!canvas->awaitingAnswer());
        QCOMPARE(canvas->state(), CanvasState::Page);
        QCOMPARE(canvas->history()->at(1).spec->rows.size(), 3);
        canvas->stepBack();
        QCOMPARE(canvas->artScene().coRows.size(), 3);
        QVERIFY(!canvas->sourceMessageId().isEmpty());
    }

    void growsOnAfterASilence() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        CanvasRoom *canvas = f.store->canvas();
        QVERIFY(arrives(f, 9, table));
        f.clock.advance(2s);
        QCOMPARE(canvas->state(), CanvasState::Scene);
        QVERIFY(!f.store->chat()->canStop());
        const QString longer = table + u"\n| Rudder | 7 |"_s;
        QVERIFY(arrives(f, 9, longer));
        QVERIFY(f.store->chat()->canStop());
        QVERIFY(f.msgs().index(2).data(MessageModel::GrowingRole).toBool());
        QCOMPARE(canvas->artScene().coRows.size(), 2);
        f.clock.advance(2s);
        QVERIFY(!f.store->chat()->canStop());
        QCOMPARE(canvas->state(), CanvasState::Scene);
        QCOMPARE(canvas->artScene().coRows.size(), 3);
        QCOMPARE(canvas->history()->count(), 1);
        QCOMPARE(canvas->history()->at(0).spec->rows.size(), 3);
        SOON_COMPARE(drawings(f), 1);

        // With another canvas in sight only the history takes it up.
        canvas->openHistory(0);
        QVERIFY(arrives(f, 9, longer + u"\n| Keel | 9 |"_s));
        f.clock.advance(2s);
        QCOMPARE(canvas->artScene().coRows.size(), 3);
        QCOMPARE(canvas->history()->at(1).spec->rows.size(), 4);
        QCOMPARE(canvas->history()->count(), 2);
    }

    void figuresAfterASilence() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        QVERIFY(arrives(f, 9, u"Let me look that up."_s));
        f.clock.advance(2s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Hint);
        QVERIFY(arrives(f, 9, u"Let me look that up.\n\n"_s + table));
        f.clock.advance(2s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Scene);
        QCOMPARE(f.store->canvas()->query(), u"What is planned?"_s);
        QCOMPARE(f.store->canvas()->history()->count(), 1);

        // A stopped answer is shown and not drawn, however long it goes on.
        f.store->chat()->send(u"And now?"_s);
        QVERIFY(arrives(f, 11, u"Let me see."_s));
        f.store->chat()->stopLive();
        QVERIFY(arrives(f, 11, u"Let me see.\n\n"_s + reportBlock));
        f.clock.advance(5s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Empty);
        QVERIFY(!f.store->chat()->canStop());
    }

    /// It is drawn at once and ends nothing: the answer itself may still come.
    void rowWithoutAnId() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        const CanvasRoom *canvas = f.store->canvas();
        QSignalSpy failed(f.store->chat(), &ChatRoom::answerFailed);
        const auto saysQuiet = [&] {
            f.backend.sendRow(kivChat + u"/stream"_s, R"({"role":"agent","content":"All quiet."})");
            return test::soon([&] { return canvas->state() == CanvasState::Hint; });
        };
        QVERIFY(saysQuiet());
        QCOMPARE(f.texts().last(), u"All quiet."_s);
        QVERIFY(!f.msgs().index(2).data(MessageModel::GrowingRole).toBool());
        f.clock.advance(5s);
        QVERIFY(f.store->chat()->canStop());
        QVERIFY(arrives(f, 9, table));
        f.clock.advance(2s);
        QCOMPARE(canvas->state(), CanvasState::Scene);
        QVERIFY(!f.store->chat()->canStop());

        f.backend.answer(kivPost, R"({"message":)" + rowJson(10, u"user"_s, u"And now?"_s) + "}");
        f.store->chat()->send(u"And now?"_s);
        SOON_VERIFY(f.msgs().rowOfServerID(10) >= 0);
        QVERIFY(saysQuiet());
        f.clock.advance(180s);
        QVERIFY(!canvas->awaitingAnswer());
        QCOMPARE(canvas->state(), CanvasState::Hint);
        QCOMPARE(failed.count(), 0);
    }

    /// The answer before goes on being written, and its block shows when it is whole.
    void askedWhileAnAnswerGrows() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        const QString block = u"Look:\n"_s + reportBlock;
        QVERIFY(arrives(f, 9, block.chopped(20)));
        const QPersistentModelIndex before = f.msgs().index(2);
        f.store->chat()->send(u"And now?"_s);
        QVERIFY(arrives(f, 9, block.chopped(3)));
        QCOMPARE(before.data(MessageModel::BodyRole).toString(), u"Look:"_s);
        f.clock.advance(1200ms);
        QVERIFY(!before.data(MessageModel::GrowingRole).toBool());
        QVERIFY(arrives(f, 9, block.chopped(2)));
        QVERIFY(before.data(MessageModel::GrowingRole).toBool());
        QVERIFY(arrives(f, 11, u"So it is"_s));
        QVERIFY(arrives(f, 9, block));
        QVERIFY(!before.data(MessageModel::GrowingRole).toBool());
        const int row = static_cast<int>(f.msgs().rowOfServerID(11));
        QVERIFY(f.msgs().index(row).data(MessageModel::GrowingRole).toBool());
    }

    /// The patience of three minutes is for an answer to come; one that is being written has come.
    void longAnswer() {
        StoreFixture f;
        QVERIFY(f.ask(question));
        QString text = u"It began so:"_s;
        for (int second = 0; second < 200; ++second) {
            text += u" and then"_s;
            f.row(9, text);
            SOON_COMPARE(f.texts().last(), text);
            f.clock.advance(1s);
        }
        QVERIFY(f.store->canvas()->awaitingAnswer());
        QVERIFY(f.store->chat()->canStop());
        QVERIFY(arrives(f, 9, text + u"\n\n"_s + table));
        f.clock.advance(2s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Scene);
        QVERIFY(!f.store->chat()->canStop());
    }

    void askedAgain() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, "{}", 500);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.store->canvas()->state(), CanvasState::Failed);
        // What was not sent is sent in its place …
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.store->chat()->retryTurn();
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        QCOMPARE(f.texts().count(u"hello"_s), 1);
        // … and what nobody answered is asked once more.
        f.clock.advance(180s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Failed);
        f.store->chat()->retryTurn();
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
        QCOMPARE(f.texts().count(u"hello"_s), 2);
    }
};

QTEST_GUILESS_MAIN(TurnTest)
#include "TurnTest.moc"
