// The live stream of a chat over real sockets, on a clock that is advanced by hand.

#include "ClientFixture.h"
#include "net/ChatStreamClient.h"
#include "net/ChatTarget.h"
#include "net/SSEFrameParser.h"

using namespace kiv;
using namespace kiv::net;
using namespace kiv::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray insertOf(int id, QByteArray content = "x") {
    return "event: message-insert\ndata: {\"id\":" + QByteArray::number(id) +
           ",\"role\":\"assistant\",\"content\":\"" + content + "\"}\n\n";
}

struct StreamFixture : ClientFixture {
    void start(QString path = ChatTarget::agent(u"7"_s).streamPath()) {
        stream->start(path, {.onMessage =
                                 [this](const ChatRow &row) {
                                     rows.append(row);
                                     called(u"onMessage"_s);
                                 },
                             .onReconnect = [this] { called(u"onReconnect"_s); },
                             .onOpen = [this] { called(u"onOpen"_s); },
                             .onRefused = [this] { called(u"onRefused"_s); }});
    }
    void called(const QString &callback) {
        ++calls[callback];
        if (const auto act = acts.take(callback))
            act();
    }
    /// Answers the request that waits with the head of a stream.
    Peer *greet() {
        Peer *peer = server.last().peer;
        peer->replyHead(200, -1, {"Content-Type: text/event-stream"});
        peer->send("event: ready\n\n");
        return peer;
    }
    /// A connected stream that has delivered its first row.
    Peer *connect() {
        const qsizetype before = server.count();
        start();
        if (!QTest::qWaitFor([&] { return server.count() > before; }))
            return nullptr;
        Peer *peer = greet();
        peer->send(insertOf(0));
        const qsizetype had = rows.size();
        return QTest::qWaitFor([&] { return rows.size() > had; }) ? peer : nullptr;
    }

    std::unique_ptr<ChatStreamClient> stream = std::make_unique<ChatStreamClient>(*client);
    QList<ChatRow> rows;
    QHash<QString, int> calls;
    QHash<QString, std::function<void()>> acts; ///< what a callback does the next time
};

} // namespace

class StreamTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void theStreamIsAskedForWithTheSession() {
        StreamFixture at;
        at.server.answer(200, "{}", {"Set-Cookie: sid=1"});
        Call<QByteArray> login([&](Cancel cancel) {
            return at.client->postRaw(u"api/v2/auth/login"_s, QJsonObject(), cancel);
        });
        QVERIFY(login.finish());
        at.server.answer(nullptr);
        at.start(ChatTarget::project(u"a/b"_s).streamPath());
        QTRY_COMPARE(at.server.count(), 2);
        QCOMPARE(at.server.last().method, "GET"_ba);
        QCOMPARE(at.server.last().target, "/api/v2/projects/a%2Fb/chat/stream"_ba);
        QCOMPARE(at.server.last().headers["accept"], "text/event-stream"_ba);
        QCOMPARE(at.server.last().headers["accept-encoding"], "identity"_ba);
        QCOMPARE(at.server.last().headers["origin"], at.server.url().toEncoded());
        QCOMPARE(at.server.last().headers["cookie"], "sid=1"_ba);
        QCOMPARE(at.calls[u"onReconnect"_s], 0);
    }

    void rowsArriveAsTheyAreSent() {
        StreamFixture at;
        Peer *peer = at.connect();
        QVERIFY(peer);
        const QByteArray cut = insertOf(1, "Ж😀");
        const qsizetype middle = cut.indexOf("😀") + 2;
        peer->send(cut.first(middle));
        QTRY_COMPARE(at.clock.nextDue(), 35s);
        peer->send(cut.sliced(middle));
        QTRY_COMPARE(at.rows.size(), 2);
        QCOMPARE(at.rows[1].content, u"Ж😀"_s);

        peer->send(QByteArray(": keep-alive\n\nid: 9\n") + insertOf(2).replace("\n", "\r\n") +
                   "event: message\ndata: {\"role\":\"user\",\ndata: \"content\":\"two\"}\n\n" +
                   "event: typing\ndata: {\"role\":\"user\",\"content\":\"no\"}\n\n" +
                   "data: no JSON\n\ndata: {\"role\":\"user\"}\n\n" +
                   "data: {\"id\":\"7\",\"role\":\"user\",\"content\":\"no\"}\n\n" + insertOf(3));
        QTRY_COMPARE(at.rows.size(), 5);
        QCOMPARE(at.rows[2].id, 2);
        QCOMPARE(at.rows[3].content, u"two"_s);
        QCOMPARE(at.rows[4].id, 3);
        QCOMPARE(at.server.count(), 1);
    }

    void thousandsOfRowsInOnePacketAndAMegabyteRow() {
        StreamFixture at;
        Peer *peer = at.connect();
        QVERIFY(peer);
        QByteArray packet =
            "data: {\"role\":\"user\",\"content\":\"" + QByteArray(4 << 20, 'x') + "\"}\n\n";
        for (int id = 1; id <= 20'000; ++id)
            packet += insertOf(id);
        peer->send(packet);
        QTRY_COMPARE_WITH_TIMEOUT(at.rows.size(), 20'002, 30'000);
        QCOMPARE(at.rows[1].content.size(), 4 << 20);
        QCOMPARE(at.rows.last().id, 20'000);
    }

    void reconnectsWaitLongerEachTime_data() {
        QTest::addColumn<QByteArrayList>("ends");
        QTest::addColumn<QList<int>>("waits");
        const QByteArray refused = "HTTP/1.1 500 No\r\nContent-Length: 0\r\n\r\n";
        const QByteArray notFound = "HTTP/1.1 404 No\r\nContent-Length: 2\r\n\r\n{}";
        const QByteArray closed = "HTTP/1.1 200 OK\r\n\r\nevent: ready\n\n";
        const QByteArray cut = "HTTP/1.1 200 OK\r\nContent-Length: 999\r\n\r\nevent: ready\n\n";
        const QByteArray limited = "HTTP/1.1 429 No\r\nContent-Length: 0\r\n\r\n";
        QTest::newRow("refused") << QByteArrayList(8, refused)
                                 << QList<int>{1, 2, 4, 8, 16, 30, 30, 30};
        QTest::newRow("closed") << QByteArrayList(7, closed) << QList<int>(7, 1);
        QTest::newRow("mixed") << QByteArrayList{closed, refused, closed, cut, limited, notFound}
                               << QList<int>{1, 2, 1, 8, 16, 30};
    }
    void reconnectsWaitLongerEachTime() {
        QFETCH(QByteArrayList, ends);
        QFETCH(QList<int>, waits);
        StreamFixture at;
        at.start();
        for (qsizetype attempt = 0; attempt < ends.size(); ++attempt) {
            QTRY_COMPARE(at.server.count(), attempt + 1);
            QCOMPARE(at.calls[u"onReconnect"_s], attempt);
            at.server.last().peer->send(ends[attempt]);
            at.server.last().peer->close();
            const std::chrono::seconds wait(waits[attempt]);
            QTRY_VERIFY(at.clock.nextDue() && *at.clock.nextDue() <= 30s);
            QCOMPARE(at.clock.nextDue(), wait);
            at.clock.advance(wait - 1ms);
            QCOMPARE(at.calls[u"onReconnect"_s], attempt);
            at.clock.advance(1ms);
            QCOMPARE(at.calls[u"onReconnect"_s], attempt + 1);
        }
    }

    void nobodySignedInEndsIt() {
        StreamFixture at;
        at.start();
        QTRY_COMPARE(at.server.count(), 1);
        at.server.last().peer->reply(401);
        QTRY_VERIFY(!at.stream->running());
        QCOMPARE(at.clock.pending(), 0);
        QCOMPARE(at.calls[u"onReconnect"_s], 0);
        QCOMPARE(at.calls[u"onRefused"_s], 1);
        QVERIFY(at.connect());
    }

    void silenceReconnects() {
        StreamFixture at;
        Peer *peer = at.connect();
        QVERIFY(peer);
        at.clock.advance(34s);
        peer->send(":");
        QTRY_COMPARE(at.clock.nextDue(), 35s);
        at.clock.advance(35s);
        QTRY_VERIFY(peer->isClosed());
        QCOMPARE(at.clock.nextDue(), 1s);
        at.clock.advance(1s);
        QTRY_COMPARE(at.server.count(), 2);
    }

    void anOfflineMachineWaits() {
        StreamFixture at;
        at.connectivity.setOnline(false);
        at.start();
        at.clock.advance(34s);
        at.connectivity.setOnline(true);
        QTRY_COMPARE(at.server.count(), 1);
        QCOMPARE(at.calls[u"onReconnect"_s], 0);
    }

    void aLineWithoutEndReconnects() {
        StreamFixture at;
        Peer *peer = at.connect();
        QVERIFY(peer);
        peer->send("data: " + QByteArray(streamEventLimit, 'x'));
        QTRY_VERIFY_WITH_TIMEOUT(peer->isClosed(), 30'000);
        QTRY_COMPARE(at.clock.nextDue(), 1s);
        at.clock.advance(1s);
        QTRY_COMPARE(at.server.count(), 2);
        at.greet()->send(insertOf(8));
        QTRY_COMPARE(at.rows.size(), 2);
    }

    void callbacksMayEndTheStream_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("callback");
        for (const QString &action : {u"stop"_s, u"destroy"_s, u"destroy all"_s, u"restart"_s}) {
            for (const QString &callback :
                 {u"onMessage"_s, u"onReconnect"_s, u"onOpen"_s, u"onRefused"_s})
                QTest::newRow(qPrintable(action + u" in "_s + callback)) << action << callback;
        }
    }
    void callbacksMayEndTheStream() {
        QFETCH(QString, action);
        QFETCH(QString, callback);
        StreamFixture at;
        Peer *peer = at.connect();
        QVERIFY(peer);
        const auto act = [&] {
            if (action == u"stop"_s)
                at.stream->stop();
            else if (action == u"restart"_s)
                at.start(u"another"_s);
            else
                at.stream.reset();
            if (action == u"destroy all"_s)
                at.client.reset();
        };
        const bool inMessage = callback == u"onMessage"_s;
        at.acts[callback] = act;
        peer->send(insertOf(1) + insertOf(2) + insertOf(3));
        if (!inMessage) {
            QTRY_COMPARE(at.rows.size(), 4);
            peer->close();
            QTRY_COMPARE(at.clock.nextDue(), 1s);
            at.clock.advance(1s);
            QCOMPARE(at.calls[u"onReconnect"_s], 1);
        }
        if (callback == u"onOpen"_s) {
            QTRY_COMPARE(at.server.count(), 2);
            peer = at.greet();
            peer->send(insertOf(4));
        } else if (callback == u"onRefused"_s) {
            QTRY_COMPARE(at.server.count(), 2);
            at.server.last().peer->reply(401);
            QTRY_COMPARE(at.calls[callback], 1);
        }
        QTRY_VERIFY(peer->isClosed());
        QCOMPARE(at.rows.size(), inMessage ? 2 : 4);
        if (action == u"restart"_s) {
            QTRY_COMPARE(at.server.last().target, "/another"_ba);
            at.greet()->send(insertOf(9));
            QTRY_COMPARE(at.rows.last().id, 9);
        } else {
            QCOMPARE(at.clock.pending(), 0);
        }
    }

    void nothingComesAfterAStop_data() {
        QTest::addColumn<QString>("moment");
        for (const char *moment : {"while connecting", "with rows on the way", "while waiting"})
            QTest::newRow(moment) << QString::fromLatin1(moment);
    }
    void nothingComesAfterAStop() {
        QFETCH(QString, moment);
        StreamFixture at;
        Peer *peer = nullptr;
        if (moment == u"while connecting"_s) {
            at.start();
        } else {
            peer = at.connect();
            QVERIFY(peer);
            peer->send(insertOf(1));
        }
        if (moment == u"while waiting"_s) {
            QTRY_COMPARE(at.rows.size(), 2);
            peer->close();
            QTRY_COMPARE(at.clock.nextDue(), 1s);
        }
        const qsizetype had = at.rows.size();
        at.stream->stop();
        QVERIFY(!at.stream->running());
        QCOMPARE(at.clock.pending(), 0);
        if (peer)
            QTRY_VERIFY(peer->isClosed());
        at.clock.advance(60s);
        QCOMPARE(at.rows.size(), had);
        QCOMPARE(at.calls[u"onReconnect"_s], 0);
    }
};

QTEST_GUILESS_MAIN(StreamTest)
#include "StreamTest.moc"
