// What goes over the wire with every call, and how calls fail.

#include "ClientFixture.h"
#include "net/SessionRecords.h"

#include <QJsonArray>

#include <algorithm>

using namespace kiv;
using namespace kiv::net;
using namespace kiv::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Kind = APIError::Kind;

class RequestsTest : public QObject {
    Q_OBJECT

private:
    Call<HttpResponse> get(ClientFixture &at, APIClient::Query query = {}) {
        return Call<HttpResponse>([&](Cancel cancel) {
            return at.client->send(at.client->request("GET", u"api/v2/thing"_s, query), cancel);
        });
    }
    Call<QByteArray> post(ClientFixture &at, QJsonObject body = {}) {
        return Call<QByteArray>(
            [&](Cancel cancel) { return at.client->postRaw(u"api/v2/thing"_s, body, cancel); });
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void everyRequestSaysWhereItComesFrom() {
        ClientFixture at;
        at.server.answer(200, "{}");
        QUrl base = at.server.url();
        base.setPath(u"/hosted"_s);
        at.client->setBaseUrl(base);

        auto asked = get(at, {{u"limit"_s, u"30"_s}, {u"q"_s, u"a+b &c=д"_s}});
        QVERIFY(asked.finish());
        QCOMPARE(at.server.last().method, "GET"_ba);
        QCOMPARE(at.server.last().target,
                 "/hosted/api/v2/thing?limit=30&q=a%2Bb%20%26c%3D%D0%B4"_ba);
        QCOMPARE(at.server.last().headers["accept"], "application/json"_ba);
        QCOMPARE(at.server.last().headers["origin"], at.server.url().toEncoded());

        auto posted = post(at, {{u"text"_s, u"Привет"_s}, {u"list"_s, QJsonArray{1, 2.5}}});
        QVERIFY(posted.finish());
        QCOMPARE(at.server.last().method, "POST"_ba);
        QCOMPARE(at.server.last().headers["content-type"], "application/json"_ba);
        QCOMPARE(at.server.last().headers["accept"], "application/json"_ba);
        QCOMPARE(at.server.last().headers["origin"], at.server.url().toEncoded());
        QCOMPARE(at.server.last().body, "{\"list\":[1,2.5],\"text\":\"Привет\"}"_ba);

        Call<QByteArray> patched(
            [&](Cancel cancel) { return at.client->patch(u"api/v2/thing"_s, {}, cancel); });
        QVERIFY(patched.finish());
        QCOMPARE(at.server.last().method, "PATCH"_ba);
        QCOMPARE(at.server.last().body, "{}"_ba);
    }

    void statusesBecomeErrors_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("code");

        const auto row = [](const char *name, int status, const char *body, Kind kind,
                            const char *text, const char *code = "") {
            QTest::newRow(name) << status << QByteArray(body) << static_cast<int>(kind)
                                << QString::fromUtf8(text) << QString::fromUtf8(code);
        };
        row("300 is no success", 300, "{}", Kind::Server, "HTTP 300");
        row("a page of a proxy", 500, "<html>Oops</html>", Kind::Server, "HTTP 500");
        row("no body", 502, "", Kind::Server, "HTTP 502");
        row("not UTF-8", 503, "{\"error\":\"\xff\"}", Kind::Server, "HTTP 503");
        row("beyond the known", 600, "{}", Kind::Server, "HTTP 600");
        row("message and code", 400, R"({"error":"Нет","code":"bad"})", Kind::Server, "Нет", "bad");
        row("wrong types", 400, R"({"error":{"a":1},"code":7})", Kind::Server, "HTTP 400");
        row("a list", 404, R"([{"error":"x"}])", Kind::Server, "HTTP 404");
        row("csrf in any case", 403, R"({"error":"Bad cSrF token"})", Kind::Csrf,
            "CSRF: Bad cSrF token");
        row("another 403", 403, R"({"error":"Forbidden","code":"csrf"})", Kind::Server, "Forbidden",
            "csrf");
        row("csrf elsewhere", 400, R"({"error":"csrf"})", Kind::Server, "csrf");
        row("401", 401, R"({"error":"Sign in"})", Kind::Unauthorized, "Sign in");
        row("401 without a word", 401, "", Kind::Unauthorized, "HTTP 401");
        row("429", 429, "", Kind::RateLimited, "HTTP 429");
        row("429 with a word", 429, R"({"error":"csrf slow down"})", Kind::RateLimited,
            "csrf slow down");
    }
    void statusesBecomeErrors() {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(int, kind);
        QFETCH(QString, text);
        QFETCH(QString, code);
        ClientFixture at;
        at.server.answer(status, body, {"WWW-Authenticate: Basic realm=x"});
        auto call = post(at);
        QVERIFY(call.finish());
        QVERIFY(call.failedWith(static_cast<Kind>(kind)));
        QCOMPARE(call.errorText(), text);
        QCOMPARE(call.apiError()->code().value_or(QString()), code);
        QCOMPARE(call.apiError()->status(), kind == static_cast<int>(Kind::Server) ? status : 0);
        QVERIFY(!call.wasCancelled());
        QCOMPARE(at.server.count(), 1);
    }

    void everyTwoHundredSucceeds() {
        for (const int status : {200, 201, 204, 299}) {
            ClientFixture at;
            at.server.answer(status, status == 204 ? ""_ba : "{}"_ba);
            auto call = post(at);
            QVERIFY(call.finish());
            QVERIFY2(call.succeeded(), qPrintable(call.errorText()));
        }
    }

    void aBodyThatCannotBeReadKeepsItsOwnError() {
        ClientFixture at;
        at.server.answer(200, "<html>");
        Call<Ack> call([&](Cancel cancel) { return at.client->get<Ack>(u"x"_s, {}, cancel); });
        QVERIFY(call.finish());
        QVERIFY_THROWS_EXCEPTION(DecodingError, std::rethrow_exception(call.error()));
        QVERIFY(!call.errorText().isEmpty());
    }

    void brokenTransportsFailAtOnce_data() {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no HTTP") << "220 mail.example.org ESMTP\r\n\r\n"_ba;
        QTest::newRow("half a head") << "HTTP/1.1 200 OK\r\nContent-Le"_ba;
        QTest::newRow("half a body") << "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{}"_ba;
        QTest::newRow("half an error") << "HTTP/1.1 500 Oops\r\nContent-Length: 9\r\n\r\n{}"_ba;
    }
    /// Nor does the network layer send anything a second time, which could post a message twice.
    void brokenTransportsFailAtOnce() {
        QFETCH(QByteArray, answer);
        for (const bool keptAlive : {false, true}) {
            ClientFixture at;
            at.server.answer(200, "{}");
            if (keptAlive) {
                auto first = get(at);
                QVERIFY(first.finish());
            }
            const qsizetype before = at.server.count();
            at.server.answer([&](const Peer::Request &request) {
                request.peer->send(answer);
                request.peer->close();
            });
            auto call = post(at, {{u"text"_s, u"once"_s}});
            QVERIFY(call.finish());
            QVERIFY2(call.failedWith(Kind::Transport), qPrintable(call.errorText()));
            QVERIFY(!call.errorText().isEmpty());
            QCOMPARE(at.server.count(), before + 1);
        }
    }

    void answersThatAreTooLargeAreGivenUp_data() {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("body");
        const QByteArray large(70 * 1024 * 1024, ' ');
        QTest::newRow("as it is") << ""_ba << large;
        // Seventy kilobytes that unpack to the same.
        QTest::newRow("packed") << "Content-Encoding: deflate"_ba << qCompress(large).mid(4);
    }
    void answersThatAreTooLargeAreGivenUp() {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, body);
        ClientFixture at;
        at.server.answer(200, body,
                         encoding.isEmpty() ? QByteArrayList() : QByteArrayList{encoding});
        Call<HttpResponse> call([&](Cancel cancel) {
            return at.client->fetch(at.client->request("GET", u"x"_s), cancel);
        });
        QVERIFY(call.finish());
        QVERIFY(call.failedWith(APIError::Kind::Transport));
    }

    void aRefusedConnectionFailsAtOnce() {
        ClientFixture at;
        at.server.close();
        auto call = get(at);
        QVERIFY(call.finish());
        QVERIFY(call.failedWith(Kind::Transport));
    }

    void silenceTimesOutAndEveryByteIsASign() {
        ClientFixture at;
        auto call = get(at);
        QTRY_COMPARE(at.server.count(), 1);
        QCOMPARE(at.clock.nextDue(), 60s);
        at.clock.advance(59s);
        at.server.last().peer->replyHead(200, 3);
        QTRY_COMPARE(at.clock.nextDue(), 60s);
        at.clock.advance(59s);
        at.server.last().peer->send("{");
        QTRY_COMPARE(at.clock.nextDue(), 60s);
        at.clock.advance(59'999ms);
        QVERIFY(!call.isDone());
        at.clock.advance(1ms);
        QVERIFY(call.failedWith(Kind::Transport));
        QVERIFY(!call.errorText().isEmpty());
        QTRY_VERIFY(at.server.last().peer->isClosed());
        QCOMPARE(at.clock.pending(), 0);
    }

    void aSlowUploadIsNoSilence() {
        ClientFixture at;
        at.server.stopReading();
        QList<qint64> sent;
        qint64 total = 0;
        const auto watch = [&](qint64 now, qint64 all) {
            sent.append(now);
            total = all;
        };
        const QList<MultipartFile> files{
            {u"a.txt"_s, u"text/plain"_s, QByteArray(16 * 1024 * 1024, 'x')}};
        Call<QByteArray> call([&](Cancel cancel) {
            return at.client->postMultipart(u"files"_s, files, watch, std::move(cancel));
        });
        QTRY_COMPARE(at.server.peers().size(), 1);
        QTRY_VERIFY(!sent.isEmpty());
        QVERIFY(sent.last() < total);
        at.clock.advance(59s);
        at.server.answer(200, "{}");
        at.server.peers().first()->goOnReading();
        QTRY_VERIFY(at.clock.nextDue() == 60s);
        at.clock.advance(59s);
        QVERIFY(call.finish());
        QVERIFY2(call.succeeded(), qPrintable(call.errorText()));
        QVERIFY(std::ranges::is_sorted(sent));
        QCOMPARE(sent.last(), total);
        QCOMPARE(total, at.server.last().body.size());
    }

    void offlineRequestsWait_data() {
        QTest::addColumn<bool>("comesBack");
        QTest::newRow("the network comes back") << true;
        QTest::newRow("it stays away") << false;
    }
    void offlineRequestsWait() {
        QFETCH(bool, comesBack);
        ClientFixture at;
        at.server.answer(200, "{}");
        at.connectivity.setOnline(false);
        auto call = get(at);
        at.clock.advance(59s);
        QVERIFY(!call.isDone());
        if (!comesBack)
            at.clock.advance(1s);
        at.connectivity.setOnline(true);
        QVERIFY(call.finish());
        QCOMPARE(call.succeeded(), comesBack);
        QCOMPARE(call.failedWith(Kind::Transport), !comesBack);
        auto another = post(at);
        QVERIFY(another.finish());
        QCOMPARE(at.server.count(), comesBack ? 2 : 1);
    }

    void givingUpAbortsAtTheServer_data() {
        QTest::addColumn<QString>("moment");
        QTest::newRow("before the answer") << u"asked"_s;
        QTest::newRow("in the middle of it") << u"half"_s;
        QTest::newRow("while offline") << u"offline"_s;
        QTest::newRow("by destroying the client") << u"destroyed"_s;
        QTest::newRow("by destroying it while offline") << u"offline destroyed"_s;
    }
    void givingUpAbortsAtTheServer() {
        QFETCH(QString, moment);
        ClientFixture at;
        at.connectivity.setOnline(!moment.contains(u"offline"_s));
        auto call = get(at);
        if (!moment.contains(u"offline"_s))
            QTRY_COMPARE(at.server.count(), 1);
        if (moment == u"half"_s) {
            at.clock.advance(1s);
            at.server.last().peer->replyHead(200, 9);
            QTRY_COMPARE(at.clock.nextDue(), 60s);
        }
        if (moment.contains(u"destroyed"_s))
            at.client.reset();
        else
            call.cancel();
        QVERIFY(call.isDone());
        QVERIFY(call.failedWith(Kind::Cancelled));
        QCOMPARE(call.errorText(), u"Cancelled"_s);
        QVERIFY(call.wasCancelled());
        for (const Peer *peer : at.server.peers())
            QTRY_VERIFY(peer->isClosed());
        QCOMPARE(at.clock.pending(), 0);
    }

    /// The network layer's own thread has read it, this one not yet.
    void anErrorThatComesAfterGivingUpIsNone() {
        ClientFixture at;
        auto call = get(at);
        QTRY_COMPARE(at.server.count(), 1);
        at.server.last().peer->reply(404, "{}");
        at.server.last().peer->flush();
        QTest::qSleep(100);
        call.cancel();
        QVERIFY(call.failedWith(Kind::Cancelled));
        QTest::qWait(20); // a warning fails the test
    }

    void whatWasGivenUpBeforeItBeganAsksNothing() {
        ClientFixture at;
        at.server.answer(200, "{}");
        Work work;
        std::optional<Cancel> given;
        work.start([&](Cancel cancel) -> QCoro::Task<void> {
            given = cancel;
            return at.clock.sleep(1s, cancel);
        });
        work.cancel();
        Call<QByteArray> call(
            [&](Cancel) { return at.client->postRaw(u"x"_s, QJsonObject(), *given); });
        QVERIFY(call.failedWith(Kind::Cancelled));
        auto another = post(at);
        QVERIFY(another.finish());
        QCOMPARE(at.server.count(), 1);
    }

    void everyFailureHasAText() {
        QCOMPARE(errorText(DecodingError("Ж")), u"Ж"_s);
        QCOMPARE(errorText(APIError::csrf(u"ж"_s)), u"CSRF: ж"_s);
        QVERIFY(isCancellation(Cancelled()));
        QVERIFY(isCancellation(APIError::cancelled()));
        QVERIFY(!isCancellation(DecodingError("")));
        QVERIFY(!isCancellation(APIError::transport(u"Cancelled"_s)));
    }
};

QTEST_GUILESS_MAIN(RequestsTest)
#include "RequestsTest.moc"
