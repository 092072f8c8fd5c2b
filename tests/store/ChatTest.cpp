// The conversation: sending, receiving, failing, coming back.

#include "StoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::kivGreeting;
using test::kivPost;
using test::rowJson;
using test::StoreFixture;

class ChatTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void greetings_data() {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("agent");
        QTest::addColumn<QString>("greeting");
        QTest::newRow("KIV") << QString() << QString() << kivGreeting;
        QTest::newRow("project")
            << u"ferry"_s << QString()
            << u"Night Ferry — project room here. Ask about anything in this project."_s;
        QTest::newRow("agent") << u"ferry"_s << u"scout"_s
                               << u"Scout here. I only answer for my own work."_s;
    }
    void greetings() {
        QFETCH(QString, project);
        QFETCH(QString, agent);
        StoreFixture f;
        f.settings->setValue(u"zandor.project"_s, project);
        f.settings->setValue(u"zandor.agent"_s, agent);
        QVERIFY(f.signIn());
        QFETCH(QString, greeting);
        QCOMPARE(f.texts(), QStringList{greeting});
    }

    void answerGrowsInItsRow() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.store->chat()->setDraft(u" hello "_s);
        f.store->chat()->send(u" hello "_s);
        QCOMPARE(f.store->chat()->draft(), QString());
        QVERIFY(f.store->chat()->liveWaiting());
        QVERIFY(f.store->chat()->canStop());
        QCOMPARE(f.deliveryOf(1), Delivery::Pending);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        QVERIFY(f.msgs().messages().at(1).pendingID.isEmpty());
        const QJsonObject body = f.backend.requests(kivPost).first().body;
        QCOMPARE(body.value(u"text"_s).toString(), u"hello"_s);
        QCOMPARE(body.value(u"mode"_s).toString(), u"live"_s);
        QVERIFY(!body.value(u"client_request_id"_s).toString().isEmpty());
        QVERIFY(!body.contains(u"attachments"_s));

        f.row(7, u"hello"_s, u"user"_s);
        f.row(8, u"Good"_s);
        SOON_COMPARE(f.msgs().count(), 3);
        QVERIFY(!f.store->chat()->liveWaiting());
        const QPersistentModelIndex answer = f.msgs().index(2);
        QSignalSpy changed(&f.msgs(), &MessageModel::dataChanged);
        QSignalSpy removed(&f.msgs(), &MessageModel::rowsRemoved);
        f.row(8, u"Good morning"_s);
        f.row(9, u"note"_s, u"system"_s);
        f.row(8, u"Good morning."_s);
        SOON_COMPARE(answer.data(MessageModel::BodyRole).toString(), u"Good morning."_s);
        QVERIFY(answer.data(MessageModel::GrowingRole).toBool());
        QCOMPARE(f.msgs().count(), 3);
        QCOMPARE(removed.count(), 0);
        for (const auto &signal : changed)
            QCOMPARE(signal.at(0).toModelIndex().row(), 2);
        f.clock.advance(1200ms);
        QVERIFY(!answer.data(MessageModel::GrowingRole).toBool());
        QVERIFY(!f.store->chat()->canStop());
    }

    void streamIsFasterThanTheReply_data() {
        QTest::addColumn<QString>("stored");
        QTest::newRow("same text") << u"hello"_s;
        QTest::newRow("server changed it") << u"Hello"_s;
    }
    void streamIsFasterThanTheReply() {
        QFETCH(QString, stored);
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, stored) + "}");
        f.backend.hold(kivPost);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        f.row(7, stored, u"user"_s);
        SOON_VERIFY(f.msgs().rowOfServerID(7) >= 0);
        f.backend.release(kivPost);
        SOON_COMPARE(f.msgs().count(), 2);
        QCOMPARE(f.msgs().messages().at(1).serverID, 7);
        QCOMPARE(f.texts().last(), stored);
    }

    void fromAnotherDevice() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.row(3, u"from the phone"_s, u"user"_s);
        f.row(4, u"answer to it"_s);
        SOON_COMPARE(f.texts(), (QStringList{kivGreeting, u"from the phone"_s, u"answer to it"_s}));
        QCOMPARE(f.store->canvas()->phase(), Phase::Idle);
    }

    void failedSend_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("note");
        QTest::newRow("halted")
            << 409 << QByteArray(R"({"error":"x","code":"work_halted"})")
            << u"This agent is stopped. Resume it in the dashboard to continue."_s;
        QTest::newRow("funds") << 402 << QByteArray(R"({"error":"x","code":"insufficient_funds"})")
                               << u"⚠ Not enough tokens to run this agent."_s;
        QTest::newRow("said") << 500 << QByteArray(R"({"error":"The agent is ill."})")
                              << u"The agent is ill."_s;
        QTest::newRow("unsaid") << 502 << QByteArray("<html>") << u"HTTP 502"_s;
        QTest::newRow("rate") << 429 << QByteArray(R"({"error":"Slow down"})") << u"Slow down"_s;
    }
    void failedSend() {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, body, status);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.msgs().count(), 3);
        QTEST(f.texts().last(), "note");
        QCOMPARE(f.deliveryOf(1), Delivery::Failed);
        QVERIFY(!f.store->chat()->liveWaiting());
        QCOMPARE(f.store->canvas()->phase(), Phase::Idle);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Failed);

        // Once more, in its place, under the same request id.
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        const Msg failed = f.msgs().messages().at(1);
        f.store->chat()->retry(failed.id.toString(QUuid::WithoutBraces));
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        const auto requests = f.backend.requests(kivPost);
        QCOMPARE(requests.at(1).body.value(u"client_request_id"_s),
                 requests.at(0).body.value(u"client_request_id"_s));
    }

    void replyLostButStored() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, "{}", 500);
        f.backend.hold(kivPost);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        f.row(7, u"hello"_s, u"user"_s);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        f.backend.release(kivPost);
        f.settled();
        QCOMPARE(f.msgs().count(), 2);
        QCOMPARE(f.deliveryOf(1), Delivery::Stored);
    }

    void nobodyAnswers_data() {
        QTest::addColumn<bool>("answering");
        QTest::newRow("at all") << false;
        QTest::newRow("behind an answer that still came") << true;
    }
    void nobodyAnswers() {
        QFETCH(bool, answering);
        StoreFixture f;
        QVERIFY(answering ? f.ask(u"before"_s) : f.signIn());
        if (answering) {
            f.row(8, u"Half an ans"_s);
            SOON_COMPARE(f.texts().last(), u"Half an ans"_s);
        }
        const int row = f.msgs().count();
        f.backend.answer(kivPost, R"({"message":)" + rowJson(9, u"user"_s, u"hello"_s) + "}");
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.deliveryOf(row), Delivery::Stored);
        f.clock.advance(179s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
        QCOMPARE(f.store->canvas()->thinkingSeconds(), 179);
        f.clock.advance(1s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Idle);
        QVERIFY(!f.store->chat()->liveWaiting());
        QVERIFY(!f.store->canvas()->awaitingAnswer());
        QCOMPARE(f.store->canvas()->state(), CanvasState::Failed);
    }

    void stopping() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(u"POST "_s + kivChat + u"/stop"_s, "{}", 500);
        f.store->chat()->send(u"hello"_s);
        f.store->chat()->stopLive();
        QCOMPARE(f.store->canvas()->phase(), Phase::Idle);
        QVERIFY(!f.store->chat()->liveWaiting());
        SOON_COMPARE(f.backend.count(u"POST "_s + kivChat + u"/stop"_s), 1);

        f.store->scope()->enterProject(u"ferry"_s);
        SOON_VERIFY(f.backend.isStreaming(test::ferryChat + u"/stream"_s));
        f.store->chat()->send(u"hello"_s);
        QVERIFY(!f.store->chat()->canStop());
        f.store->chat()->stopLive();
        QVERIFY(f.store->chat()->liveWaiting());
    }

    void otherScopeIsNeverShown() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"old question"_s) + "]");
        QVERIFY(f.signIn());
        QCOMPARE(f.texts(), QStringList{u"old question"_s});
        const int gen = f.store->chat()->chatGen();
        f.backend.hold(u"GET "_s + test::ferryChat);
        f.store->scope()->enterProject(u"ferry"_s);
        QVERIFY(f.texts().isEmpty());
        net::ChatRow late;
        late.id = 99;
        late.role = u"assistant"_s;
        late.content = u"of the old scope"_s;
        f.store->chat()->onLiveInsert(gen, late);
        QVERIFY(f.texts().isEmpty());

        // Away and back before the first history is here.
        f.store->scope()->pickGlobal();
        f.history(test::ferryChat, "[" + rowJson(5, u"user"_s, u"ferry"_s) + "]");
        f.backend.release(u"GET "_s + test::ferryChat);
        SOON_COMPARE(f.texts(), QStringList{u"old question"_s});
        f.settled();
        QCOMPARE(f.texts(), QStringList{u"old question"_s});
    }

    void failedHistory() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.row(1, u"shown"_s);
        SOON_COMPARE(f.msgs().count(), 2);
        f.backend.answer(u"GET "_s + kivChat, "{}", 500);
        f.store->scope()->pickGlobal();
        SOON_VERIFY(!f.store->chat()->historyLoading());
        QCOMPARE(f.texts(), (QStringList{kivGreeting, u"shown"_s}));

        f.backend.answer(u"GET "_s + test::ferryChat, "{}", 500);
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_COMPARE(f.msgs().count(), 1);
        // The line is up and brings nothing back: the page is asked for again.
        SOON_VERIFY(!f.store->chat()->historyLoading());
        f.history(test::ferryChat, "[" + rowJson(3, u"assistant"_s, u"missed"_s) + "]");
        f.clock.advance(2s);
        SOON_COMPARE(f.texts(), QStringList{u"missed"_s});
        QCOMPARE(f.backend.count(u"GET "_s + test::ferryChat), 2);
    }

    void unseen() {
        StoreFixture f;
        f.store->layout()->toggleRail();
        QVERIFY(f.signIn());
        QCOMPARE(f.store->chat()->unseenMsgs(), 0);
        f.row(1, u"a"_s);
        f.row(2, u"b"_s);
        SOON_COMPARE(f.store->chat()->unseenMsgs(), 2);
        const auto idOf = [&f](int row) {
            return f.msgs().messages().at(row).id.toString(QUuid::WithoutBraces);
        };
        f.store->layout()->toggleDock();
        QCOMPARE(f.store->chat()->unseenMsgs(), 0);
        // What was new stays marked while it is looked at, whatever comes meanwhile.
        QCOMPARE(f.store->chat()->unreadFrom(), idOf(1));
        f.row(3, u"c"_s);
        SOON_COMPARE(f.msgs().count(), 4);
        QCOMPARE(f.store->chat()->unreadFrom(), idOf(1));
        f.store->layout()->toggleDock();
        QCOMPARE(f.store->chat()->unreadFrom(), QString());
        f.row(4, u"d"_s);
        SOON_COMPARE(f.store->chat()->unreadFrom(), idOf(4));
        f.store->chat()->send(u"Thanks"_s);
        QCOMPARE(f.store->chat()->unreadFrom(), QString());
    }

    void goneInTheMiddle() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.hold(kivPost);
        f.backend.hold(u"GET "_s + kivChat);
        f.store->chat()->send(u"hello"_s);
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.backend.count(kivPost), 1);
        f.store.reset();
        f.backend.release(kivPost);
        f.backend.release(u"GET "_s + kivChat);
        f.clock.advance(1h);
        QTest::qWait(10);
    }
};

QTEST_GUILESS_MAIN(ChatTest)
#include "ChatTest.moc"
