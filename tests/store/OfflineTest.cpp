// Without a network: what is sent waits, and nothing is lost.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
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
        QTest::qWait(50);
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
};

QTEST_GUILESS_MAIN(OfflineTest)
#include "OfflineTest.moc"
