// Without a network, or with the line lost: what is sent waits, what was missed comes, and nothing
// is lost.

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

namespace {

const QString kivStream = u"GET "_s + kivChat + u"/stream"_s;

} // namespace

class OfflineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void messageWaits() {
        StoreFixture f;
        QVERIFY(f.signIn());
        QVERIFY(!f.store->connection()->offline());
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.connectivity.setOnline(false);
        QVERIFY(f.store->connection()->offline());
        f.store->chat()->send(u"hello"_s);
        f.clock.advance(30s);
        QCOMPARE(f.deliveryOf(1), Delivery::Pending);
        QCOMPARE(f.backend.count(kivPost), 0);
        const int streams = f.backend.count(kivStream);
        f.history(kivChat, "[" + rowJson(7, u"user"_s, u"hello"_s) + "]");
        f.connectivity.setOnline(true);
        QVERIFY(!f.store->connection()->offline());
        SOON_COMPARE(f.deliveryOf(f.msgs().count() - 1), Delivery::Stored);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        // The line is back at once, and the answer comes in over it.
        QVERIFY(f.streaming(kivChat, streams + 1));
        f.row(8, test::reportBlock);
        SOON_COMPARE(f.store->canvas()->phase(), Phase::Building);
    }

    void tooLongWithoutANetwork() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.connectivity.setOnline(false);
        f.store->chat()->send(u"hello"_s);
        f.clock.advance(60s);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Failed);
        QCOMPARE(f.texts().last(), u"There is no network connection."_s);
        QCOMPARE(f.store->canvas()->state(), CanvasState::Failed);
        // It stays, and goes out when it is sent again.
        f.connectivity.setOnline(true);
        SOON_COMPARE(f.deliveryOf(f.msgs().count() - 1), Delivery::Failed);
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.store->chat()->retryTurn();
        SOON_COMPARE(f.backend.count(kivPost), 1);
    }

    /// The system may be wrong: the server itself is asked.
    void retryNow() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.connectivity.setOnline(false);
        f.store->chat()->send(u"hello"_s);
        f.store->connection()->retryNow();
        SOON_VERIFY(!f.store->connection()->offline());
        SOON_COMPARE(f.backend.count(kivPost), 1);
        // News of the system count again.
        f.connectivity.setOnline(false);
        QVERIFY(f.store->connection()->offline());

        f.client->setBaseUrl(QUrl(u"http://127.0.0.1:1"_s));
        f.store->connection()->retryNow();
        QTcpSocket behind;
        behind.connectToHost(QHostAddress::LocalHost, 1);
        SOON_COMPARE(behind.state(), QAbstractSocket::UnconnectedState);
        QVERIFY(f.store->connection()->offline());
    }

    void offlineFromTheStart() {
        StoreFixture f;
        f.connectivity.setOnline(false);
        f.store->boot();
        QVERIFY(f.store->connection()->offline());
        QCOMPARE(f.backend.count(u"GET api/v2/auth/me"_s), 0);
        f.connectivity.setOnline(true);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::SignedIn);
    }

    void reconnectBringsWhatWasMissed() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost,
                         R"({"message":)" + rowJson(7, u"user"_s, u"Weekly report"_s) + "}");
        f.store->chat()->send(u"Weekly report"_s);
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        f.history(kivChat, "[" + rowJson(7, u"user"_s, u"Weekly report"_s) + "," +
                               rowJson(8, u"assistant"_s, test::reportBlock) + "]");
        QVERIFY(f.reconnect(kivChat));
        QCOMPARE(f.msgs().count(), 2);
        f.clock.advance(1200ms);
        QCOMPARE(f.store->canvas()->phase(), Phase::Done);
        QCOMPARE(f.store->canvas()->art(), u"report"_s);
        QCOMPARE(f.store->canvas()->history()->count(), 1);
    }

    /// Neither on the page, which was asked for before, nor on the line, which stood after.
    void comesBetweenThePageAndTheLine_data() {
        QTest::addColumn<bool>("again");
        QTest::newRow("at first") << false;
        QTest::newRow("when the line comes back") << true;
    }
    void comesBetweenThePageAndTheLine() {
        QFETCH(bool, again);
        StoreFixture f;
        const QString page = u"GET "_s + kivChat;
        f.history(kivChat, "[" + rowJson(7, u"user"_s, u"Weekly report"_s) + "]");
        if (again)
            QVERIFY(f.signIn());
        const int before = f.backend.count(page);
        f.backend.hold(kivStream);
        if (again)
            QVERIFY(f.loseLine(kivChat));
        else
            f.store->boot();
        SOON_VERIFY(f.backend.count(kivStream) >= (again ? 2 : 1));
        SOON_COMPARE(f.texts(), QStringList{u"Weekly report"_s});
        SOON_COMPARE(f.backend.count(page), before + 1);
        SOON_VERIFY(!f.store->chat()->historyLoading());
        f.history(kivChat, "[" + rowJson(7, u"user"_s, u"Weekly report"_s) + "," +
                               rowJson(8, u"assistant"_s, u"All went well."_s) + "]");
        f.backend.release(kivStream);
        SOON_COMPARE(f.texts(), (QStringList{u"Weekly report"_s, u"All went well."_s}));
        QCOMPARE(f.backend.count(page), before + 2);
    }

    /// It settles on what a page brought of it, and the rest comes with the next page.
    void answerGoesOnWhileTheLineIsLost() {
        StoreFixture f;
        QVERIFY(f.ask(u"Weekly report"_s));
        const QByteArray question = rowJson(7, u"user"_s, u"Weekly report"_s);
        const auto answered = [&](const QString &answer) {
            f.history(kivChat, "[" + question + "," + rowJson(8, u"assistant"_s, answer) + "]");
        };
        answered(u"The week."_s);
        f.backend.hold(kivStream);
        QVERIFY(f.loseLine(kivChat));
        SOON_COMPARE(f.texts().last(), u"The week."_s);
        f.clock.advance(1200ms);
        QVERIFY(!f.store->canvas()->awaitingAnswer());
        answered(u"The week.\n\n"_s + test::reportBlock);
        f.backend.release(kivStream);
        SOON_VERIFY(f.texts().last() != u"The week."_s);
        f.clock.advance(1200ms);
        f.clock.advance(500ms);
        QCOMPARE(f.store->canvas()->art(), u"report"_s);
        QCOMPARE(f.store->canvas()->history()->count(), 1);
    }

    void pageOvertakesTheLine_data() {
        QTest::addColumn<bool>("isSlow");
        QTest::newRow("lost") << false;
        QTest::newRow("back before the page, and slow") << true;
    }
    void pageOvertakesTheLine() {
        QFETCH(bool, isSlow);
        StoreFixture f;
        const QString page = u"GET "_s + kivChat;
        QVERIFY(f.signIn());
        f.row(8, u"All"_s);
        SOON_COMPARE(f.texts(), (QStringList{kivGreeting, u"All"_s}));
        f.history(kivChat, "[" + rowJson(8, u"assistant"_s, u"All went well this week."_s) + "]");
        if (isSlow) {
            f.backend.hold(page);
            QVERIFY(f.loseLine(kivChat));
            f.row(8, u"All went"_s);
            SOON_COMPARE(f.texts().last(), u"All went"_s);
            f.backend.release(page);
            SOON_VERIFY(f.streaming(kivChat, 2));
        } else {
            QVERIFY(f.reconnect(kivChat));
        }
        QCOMPARE(f.texts(), QStringList{u"All went well this week."_s});
        QSignalSpy changed(&f.msgs(), &MessageModel::dataChanged);
        f.row(8, u"All went well"_s);
        f.row(8, u"All went well this week. Next?"_s);
        SOON_COMPARE(f.texts(), QStringList{u"All went well this week. Next?"_s});
        QCOMPARE(changed.count(), 1);
        // The line has caught up: what it says now holds, a shorter text too.
        f.row(8, u"All went well this week."_s);
        SOON_COMPARE(f.texts(), QStringList{u"All went well this week."_s});
    }
};

QTEST_GUILESS_MAIN(OfflineTest)
#include "OfflineTest.moc"
