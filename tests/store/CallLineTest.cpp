// A call that is on: its clock, what is said, mute and hold, and a line that is lost.

#include "CallFixture.h"
#include "store/CallTexts.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::CallFixture;

class CallLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theClock_data() {
        QTest::addColumn<QByteArray>("session");
        QTest::addColumn<int>("warning");
        QTest::addColumn<int>("end");
        QTest::newRow("ten minutes") << QByteArray(CallFixture::sessionBody) << 570 << 600;
        QTest::newRow("not said") << QByteArray(R"({"token":"t","call_id":"c1"})") << 570 << 600;
        QTest::newRow("two minutes")
            << QByteArray(R"({"token":"t","call_id":"c1","max_duration_secs":120})") << 90 << 120;
    }
    void theClock() {
        QFETCH(QByteArray, session);
        QFETCH(int, warning);
        QFETCH(int, end);
        CallFixture f;
        f.backend.answer(f.session, session);
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        QCOMPARE(f.call()->callMax(), end);
        f.clock.advance(1999ms);
        QCOMPARE(f.call()->callSec(), 1);
        f.clock.advance(std::chrono::seconds(warning) - 2s);
        QCOMPARE(f.call()->callSec(), warning - 1);
        QVERIFY(!f.call()->callEndingSoon());
        f.call()->toggleHold(); // time on hold counts
        f.clock.advance(1ms);
        QVERIFY(f.call()->callEndingSoon());
        f.clock.advance(29'999ms);
        QCOMPARE(f.call()->callPhase(), CallPhase::Active);
        f.clock.advance(1ms);
        QCOMPARE(f.call()->callPhase(), CallPhase::Ending);
        QCOMPARE(f.call()->callSec(), end);
        QCOMPARE(f.pages.scripts.last(), u"window.__nativeEnd()"_s);
        f.clock.advance(2s);
        QVERIFY(!f.call()->call());
        QVERIFY(f.ended(1));
    }

    void whatIsSaid() {
        CallFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        f.clock.advance(3s);
        f.say(u"user"_s, u"Where"_s, u"partial"_s);
        f.say(u"ai"_s, u"One mo"_s, u"partial"_s);
        f.say(u"user"_s, u"Where are we"_s, u"partial"_s);
        f.say(u"user"_s, u"Where are we?"_s);
        QCOMPARE(f.lines(), (QStringList{u"Where are we?"_s, u"One mo / partial"_s}));
        f.say(u"ai"_s, u"One moment."_s);
        f.say(u"ai"_s, u"On plan."_s);
        f.call()->callSay(u"  thanks \n"_s);
        QCOMPARE(f.lines(), (QStringList{u"Where are we?"_s, u"One moment."_s, u"On plan."_s,
                                         u"thanks / typed"_s}));
        QCOMPARE(f.pages.calls(u"Say"_s), QStringList{u"window.__nativeSay(\"thanks\")"_s});
        f.say(u"user"_s, u"thanks"_s); // the service has it
        QCOMPARE(f.lines().last(), u"thanks"_s);
        const CallLine first = f.call()->callTranscript()->lines().first();
        QVERIFY(first.isOwner() && first.at == 3);
        for (int line = 0; line < 70; ++line)
            f.say(u"ai"_s, QString::number(line));
        QCOMPARE(f.lines().size(), 60);
        QCOMPARE(f.lines().first(), u"10"_s);
        f.post({{u"t"_s, u"mode"_s}, {u"mode"_s, u"speaking"_s}});
        QCOMPARE(f.call()->callMode(), u"speaking"_s);
        f.post({{u"t"_s, u"ping"_s}, {u"ms"_s, 37}});
        SOON_COMPARE(f.backend.count(u"POST api/v2/rum"_s), 1);
        const QJsonObject beacon = f.backend.requests(u"POST api/v2/rum"_s).last().body;
        QCOMPARE(beacon.value(u"name"_s), u"voice_call_timing"_s);
        QCOMPARE(beacon.value(u"ctx"_s).toObject().value(u"ping_ms"_s), 37);
    }

    /// Rows of the conversation that come meanwhile, once there is something to draw in them.
    void whatIsDrawn() {
        CallFixture f;
        QVERIFY(f.signIn());
        f.row(20, u"Before"_s);
        SOON_COMPARE(f.texts().last(), u"Before"_s);
        QVERIFY(f.dial());
        f.row(19, u"Too early\n\n"_s + test::reportBlock);
        SOON_VERIFY(f.texts().last().startsWith(u"Too early"_s));
        f.connected();
        f.clock.advance(4s);
        f.row(20, u"Before\n\n"_s + test::reportBlock);
        f.row(21, u"No drawing"_s);
        f.row(22, u"Here it is."_s);
        SOON_COMPARE(f.texts().last(), u"Here it is."_s);
        QCOMPARE(f.lines(), QStringList());
        f.say(u"user"_s, u"How was the week?"_s);
        f.say(u"user"_s, u"And wh"_s, u"partial"_s);
        f.row(22, u"Here it is.\n\n"_s + test::reportBlock);
        const QStringList said{u"How was the week?"_s, u"And wh / partial"_s};
        SOON_COMPARE(f.lines(), said + QStringList{u"Week 47"_s});
        QCOMPARE(f.store->canvas()->canvasTitle(), u"Week 47"_s);
        QCOMPARE(f.store->canvas()->query(), u"How was the week?"_s);
        QString grown = test::reportBlock;
        f.row(22, u"Here it is.\n\n"_s + grown.replace(u"Week 47"_s, u"Week 48"_s));
        SOON_COMPARE(f.lines(), said + QStringList{u"Week 48"_s});
        f.clock.advance(2s);
        QCOMPARE(f.store->canvas()->canvasTitle(), u"Week 48"_s);
        QCOMPARE(f.store->canvas()->history()->count(), 1);
        f.store->canvas()->clearCanvas();
        const CallLine line = f.call()->callTranscript()->lines().last();
        QVERIFY(line.kind == CallLineKind::Event && line.art == u"report"_s && line.at == 4);

        // It can be shown wherever the person is, as long as it is of the shown conversation.
        f.store->layout()->openAccount();
        f.call()->showDrawing(*line.action);
        QVERIFY(!f.call()->callShown() && f.call()->call());
        QVERIFY(f.store->layout()->isFeed());
        QCOMPARE(f.store->canvas()->canvasTitle(), u"Week 48"_s);
        QCOMPARE(f.store->canvas()->sourceMessageId(), f.call()->messageOf(*line.action));
        QCOMPARE(f.store->canvas()->query(), u"How was the week?"_s);
        f.store->door()->open(*ChatLink::parse(u"kiv://chat/agent/scout"_s));
        f.call()->showCall();
        f.call()->showDrawing(*line.action);
        QVERIFY(f.call()->callShown());
        QVERIFY(!f.call()->callHint().isEmpty());
        QVERIFY(f.streaming(u"api/v2/custom-agents/scout/chat"_s, 1));
        f.row(22, u"Of Scout\n\n"_s + test::reportBlock);
        SOON_VERIFY(f.texts().last().startsWith(u"Of Scout"_s));
        QCOMPARE(f.lines().size(), 3);
        f.call()->hangupCall();
        QVERIFY(f.connect());
        QCOMPARE(f.lines(), QStringList());
    }

    /// What was asked by text is answered in the conversation, and stays as it is when stopped.
    void whatIsTypedMeanwhile() {
        CallFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        f.say(u"user"_s, u"How was the week?"_s);
        f.backend.answer(test::kivPost,
                         R"({"message":)" + test::rowJson(7, u"user"_s, u"And now?"_s) + "}");
        f.store->chat()->send(u"And now?"_s);
        SOON_VERIFY(f.msgs().rowOfServerID(7) >= 0);
        f.row(8, u"Let me see."_s);
        SOON_COMPARE(f.texts().last(), u"Let me see."_s);
        f.store->chat()->stopLive();
        f.row(8, test::reportBlock);
        SOON_COMPARE(f.texts().last(), test::reportBlock);
        f.clock.advance(2s);
        QCOMPARE(f.lines(), QStringList{u"How was the week?"_s});
        QCOMPARE(f.store->canvas()->state(), CanvasState::Empty);
        // A drawing that turns out to be none leaves nothing.
        f.row(9, u"- one: 1\n- two: 2\n- three: 3"_s);
        SOON_COMPARE(f.lines().size(), 2);
        f.row(9, u"Nothing of that."_s);
        SOON_COMPARE(f.lines(), QStringList{u"How was the week?"_s});
        // What becomes one while a typed question waits leaves that question to its answer.
        f.backend.answer(test::kivPost,
                         R"({"message":)" + test::rowJson(10, u"user"_s, u"And then?"_s) + "}");
        f.store->chat()->send(u"And then?"_s);
        SOON_VERIFY(f.msgs().rowOfServerID(10) >= 0);
        f.row(9, test::reportBlock);
        SOON_COMPARE(f.lines().size(), 2);
        QVERIFY(f.store->canvas()->awaitingAnswer());
        f.row(11, u"Then this.\n\n"_s + test::reportBlock);
        SOON_COMPARE(f.store->canvas()->art(), u"report"_s);
        QCOMPARE(f.store->canvas()->query(), u"And then?"_s);
    }

    void muteAndHold() {
        CallFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.dial());
        f.call()->toggleMute(); // before there is a line
        f.connected();
        const auto muted = [&] {
            return f.pages.calls(u"Mute"_s).last() == u"window.__nativeMute(true)"_s;
        };
        QVERIFY(muted());
        f.call()->toggleHold();
        QVERIFY(muted() && !f.pages.audible);
        f.call()->toggleMute();
        QVERIFY(muted()); // still on hold
        f.call()->toggleHold();
        QVERIFY(!muted() && f.pages.audible);
        // A line that was connected anew is as mute as the one before.
        f.call()->toggleMute();
        f.drop();
        f.connected();
        QCOMPARE(f.pages.calls(u"Start"_s).size(), 2);
        QVERIFY(muted());
        f.call()->toggleHold();
        f.call()->hangupCall();
        f.clock.advance(2s);
        QVERIFY(f.pages.audible && !f.call()->callMuted() && !f.call()->callHeld());
    }

    void aLostLine() {
        CallFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        const QString first = f.pages.calls(u"Start"_s).first();
        f.drop();
        QVERIFY(f.call()->callReconnecting());
        QCOMPARE(f.pages.calls(u"Start"_s), QStringList(2, first));
        f.drop(u"user"_s); // the old line once more
        QVERIFY(f.call()->callReconnecting());
        f.connected();
        QVERIFY(!f.call()->callReconnecting());
        QCOMPARE(f.call()->callPhase(), CallPhase::Active);
        QCOMPARE(f.call()->callError(), QString());
        f.drop();
        QCOMPARE(f.call()->callPhase(), CallPhase::Ending);
        QCOMPARE(f.call()->callError(), u"Voice connection error: error, 1006"_s);
        QCOMPARE(f.pages.calls(u"Start"_s).size(), 2);
        f.clock.advance(4s);
        QVERIFY(!f.call()->call());
        QVERIFY(f.ended(1));
    }

    void aLineThatStaysLost_data() {
        QTest::addColumn<bool>("late");
        QTest::newRow("refused") << false;
        QTest::newRow("no answer") << true;
    }
    void aLineThatStaysLost() {
        QFETCH(bool, late);
        CallFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        f.call()->leaveCallScreen();
        f.drop();
        if (late)
            f.clock.advance(25s);
        else
            f.connectFail(u"no"_s);
        QCOMPARE(f.call()->callError(), u"Could not reconnect the call"_s);
        f.clock.advance(4s);
        QCOMPARE(f.call()->callHint(), u"Could not reconnect the call"_s); // nobody saw it
        QVERIFY(f.ended(1));
    }

    void wordsForALostLine_data() {
        QTest::addColumn<QVariantMap>("error"); // before it
        QTest::addColumn<QVariantMap>("disconnect");
        QTest::addColumn<QString>("line");
        const QVariantMap gone{{u"t"_s, u"disconnect"_s},
                               {u"reason"_s, u"error"_s},
                               {u"closeCode"_s, 1011},
                               {u"closeReason"_s, u"overload"_s}};
        QTest::newRow("as told") << QVariantMap() << gone
                                 << u"Voice connection error: error, 1011, overload"_s;
        QTest::newRow("nothing told") << QVariantMap() << QVariantMap{{u"t"_s, u"disconnect"_s}}
                                      << u"Voice connection error"_s;
        QTest::newRow("an error before")
            << QVariantMap{{u"t"_s, u"error"_s}, {u"message"_s, u"Quota exceeded"_s}} << gone
            << u"Quota exceeded"_s;
        QTest::newRow("an error without a word")
            << QVariantMap{{u"t"_s, u"error"_s}} << gone << u"Voice connection error"_s;
    }
    void wordsForALostLine() {
        QFETCH(QVariantMap, error);
        QFETCH(QVariantMap, disconnect);
        QFETCH(QString, line);
        CallFixture f;
        QVERIFY(f.signIn());
        QVERIFY(f.connect());
        f.drop();
        f.connected();
        if (!error.isEmpty())
            f.post(error);
        f.post(disconnect);
        QCOMPARE(f.call()->callError(), line);
    }

    void digests_data() {
        QTest::addColumn<QList<Msg>>("messages");
        QTest::addColumn<QString>("digest");
        const auto you = [](const QString &text) { return localMsg(Who::You, text); };
        const auto agent = [](const QString &text) { return localMsg(Who::Agent, text); };
        Msg spoken = you(u"spoken"_s);
        spoken.fromCall = true;
        Msg pending = you(u"pending"_s);
        pending.pendingID = u"p"_s;
        QTest::newRow("nothing") << QList<Msg>{you(u" \n"_s)} << QString();
        QTest::newRow("sides and blanks")
            << QList<Msg>{you(u" How\n\n are \t we? "_s), agent(u"Well"_s)}
            << u"You: How are we?\nAgent: Well"_s;
        QTest::newRow("left out") << QList<Msg>{spoken, pending, agent(u"Well"_s)}
                                  << u"Agent: Well"_s;
        QList<Msg> many;
        QStringList last;
        for (int i = 0; i < 30; ++i) {
            many.append(you(QString::number(i)));
            if (i >= 6)
                last.append(u"You: "_s + QString::number(i));
        }
        QTest::newRow("the last 24") << many << last.join(u'\n');
        const QString wide = u"👩‍🚀"_s; // one character of five units
        QTest::newRow("the last 1600 characters")
            << QList<Msg>{agent(u"old"_s), you(wide.repeated(1600))} << wide.repeated(1600);
    }
    void digests() {
        QFETCH(QList<Msg>, messages);
        QTEST(CallTexts::chatDigest(messages), "digest");
    }
};

QTEST_GUILESS_MAIN(CallLineTest)
#include "CallLineTest.moc"
