// Redirects, and which hosts get to see the session's cookie.

#include "ClientFixture.h"
#include "support/Damage.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace kiv;
using namespace kiv::net;
using namespace kiv::test;
using namespace Qt::StringLiterals;

class RedirectsTest : public QObject {
    Q_OBJECT

private:
    static Call<QByteArray> post(APIClient &client, QString path = u"start"_s) {
        return Call<QByteArray>([&](Cancel cancel) {
            return client.postRaw(path, {{u"a"_s, 1}}, cancel);
        });
    }
    /// Signs the client in at its own server.
    static bool setCookie(ClientFixture &at, QByteArray cookie = "sid=1") {
        at.server.answer(200, "{}", {"Set-Cookie: " + cookie});
        auto call = post(*at.client);
        return call.finish() && call.succeeded();
    }
    static QByteArray cookieAt(ClientFixture &at, APIClient &client) {
        at.server.answer(200, "{}");
        auto call = post(client);
        call.finish();
        return at.server.last().headers.value("cookie");
    }
    static void redirectTo(RawServer &server, int status, QByteArray location) {
        server.answer([=](const Peer::Request &request) {
            if (request.target == "/start")
                request.peer->reply(status, "", {"Location: " + location});
            else
                request.peer->reply(200, "{\"there\":1}");
        });
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void theSameServerIsFollowed_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("method");
        QTest::newRow("301") << 301 << "GET"_ba;
        QTest::newRow("302") << 302 << "GET"_ba;
        QTest::newRow("303") << 303 << "GET"_ba;
        QTest::newRow("307") << 307 << "POST"_ba;
        QTest::newRow("308") << 308 << "POST"_ba;
    }
    void theSameServerIsFollowed() {
        QFETCH(int, status);
        QFETCH(QByteArray, method);
        ClientFixture at;
        QVERIFY(setCookie(at));
        redirectTo(at.server, status, "there?x=1#part");
        auto call = post(*at.client);
        QVERIFY(call.finish());
        QCOMPARE(call.value(), "{\"there\":1}"_ba);
        QCOMPARE(at.server.last().target, "/there?x=1"_ba);
        QCOMPARE(at.server.last().method, method);
        QCOMPARE(at.server.last().headers.value("cookie"), "sid=1"_ba);
        const bool repeats = method == "POST";
        QCOMPARE(at.server.last().body, repeats ? "{\"a\":1}"_ba : ""_ba);
        QCOMPARE(at.server.last().headers.contains("content-type"), repeats);
    }

    void anotherServerGetsABareQuestion_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("host");
        QTest::addColumn<bool>("withoutScheme");
        QTest::newRow("another port") << 307 << u"127.0.0.1"_s << false;
        QTest::newRow("another name") << 308 << u"localhost"_s << false;
        QTest::newRow("without a scheme") << 308 << u"localhost"_s << true;
        QTest::newRow("not repeated") << 302 << u"localhost"_s << false;
    }
    void anotherServerGetsABareQuestion() {
        QFETCH(int, status);
        QFETCH(QString, host);
        QFETCH(bool, withoutScheme);
        ClientFixture at;
        QVERIFY(setCookie(at));
        RawServer other;
        other.answer([&](const Peer::Request &request) {
            const QByteArray back = "Location: " + at.server.url().toEncoded() + "/back";
            request.peer->reply(307, "", {back, "Set-Cookie: foreign=1"});
        });
        QByteArray there = other.url(host).toEncoded() + "/there";
        if (withoutScheme)
            there.remove(0, u"http:"_s.size());
        redirectTo(at.server, status, there);
        auto call = post(*at.client);
        QVERIFY(call.finish());
        QVERIFY2(call.succeeded(), qPrintable(call.errorText()));
        for (const Peer::Request &request : {other.last(), at.server.last()}) {
            QCOMPARE(request.method, "GET"_ba);
            QVERIFY(!request.headers.contains("cookie"));
            QVERIFY(!request.headers.contains("content-type"));
            QVERIFY(request.body.isEmpty());
        }
        QCOMPARE(at.server.last().target, "/back"_ba);
    }

    void redirectsEnd_data() {
        QTest::addColumn<int>("hops");
        QTest::addColumn<bool>("succeeds");
        QTest::newRow("ten") << 10 << true;
        QTest::newRow("eleven") << 11 << false;
    }
    void redirectsEnd() {
        QFETCH(int, hops);
        QFETCH(bool, succeeds);
        ClientFixture at;
        at.server.answer([&](const Peer::Request &request) {
            if (at.server.count() <= hops)
                request.peer->reply(302, "", {"Location: /again"});
            else
                request.peer->reply(200, "{}");
        });
        auto call = post(*at.client);
        QVERIFY(call.finish());
        QCOMPARE(call.succeeded(), succeeds);
        QCOMPARE(call.failedWith(APIError::Kind::Transport), !succeeds);
        QCOMPARE(at.server.count(), 11);
    }

    void aRedirectThatLeadsNowhereIsAnError() {
        ClientFixture at;
        for (const int status : {300, 302, 304}) {
            at.server.answer(status);
            auto call = post(*at.client);
            QVERIFY(call.finish());
            QVERIFY(call.failedWith(APIError::Kind::Server));
        }
        redirectTo(at.server, 302, "file:///etc/passwd");
        auto call = post(*at.client);
        QVERIFY(call.finish());
        QVERIFY(call.failedWith(APIError::Kind::Transport));
        // Not for the reason that what is read there is no answer.
        QVERIFY(call.apiError()->message().contains(u"unsafe address"_s));
    }

    void cookiesGoBackToTheirHostAlone_data() {
        QTest::addColumn<QByteArray>("cookie");
        QTest::newRow("session") << "sid=1"_ba;
        QTest::newRow("of a whole domain") << "sid=1; Domain=localhost"_ba;
        QTest::newRow("of a foreign domain") << "sid=1; Domain=.example.org; HttpOnly"_ba;
        QTest::newRow("secure") << "sid=1; Secure; SameSite=Lax; Path=/"_ba;
        QTest::newRow("with an age") << "sid=1; Max-Age=3600"_ba;
    }
    void cookiesGoBackToTheirHostAlone() {
        QFETCH(QByteArray, cookie);
        ClientFixture at;
        QVERIFY(setCookie(at, cookie));
        QCOMPARE(cookieAt(at, *at.client), "sid=1"_ba);
        at.client->setBaseUrl(at.server.url(u"localhost"_s));
        QCOMPARE(cookieAt(at, *at.client), ""_ba);

        at.client.reset();
        APIClient restarted(at.clock, at.connectivity, at.folder.filePath(u"session/cookies"_s));
        restarted.setBaseUrl(at.server.url());
        QCOMPARE(cookieAt(at, restarted), "sid=1"_ba);
    }

    void theSessionIsKeptForItsOwnerAlone() {
        ClientFixture at;
        QVERIFY(setCookie(at));
        const QString file = at.folder.filePath(u"session/cookies"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(file), test::diskPatience);
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QCOMPARE(QFile::permissions(file) & (others | QFile::ExeOwner), QFile::Permissions());
        QCOMPARE(QFile::permissions(at.folder.filePath(u"session"_s)) & others,
                 QFile::Permissions());

        at.client->cookies().clear();
        QVERIFY(!QFile::exists(file));
        QCOMPARE(cookieAt(at, *at.client), ""_ba);
    }

    void expiredCookiesAreDropped() {
        ClientFixture at;
        const QString file = at.folder.filePath(u"session/cookies"_s);
        QVERIFY(setCookie(at));
        QVERIFY(setCookie(at, "sid=; Max-Age=0"));
        QCOMPARE(cookieAt(at, *at.client), ""_ba);
        at.client.reset();

        const auto entry = [](const char *cookie) {
            return QJsonObject{{u"host"_s, u"127.0.0.1"_s},
                               {u"cookie"_s, QString::fromLatin1(cookie)}};
        };
        const QJsonArray saved{entry("old=1; expires=Tue, 01-Jan-2019 00:00:00 GMT; path=/"),
                               entry("new=1; expires=Tue, 01-Jan-2137 00:00:00 GMT; path=/")};
        test::putContent(file, QJsonDocument(saved).toJson());
        APIClient restarted(at.clock, at.connectivity, file);
        restarted.setBaseUrl(at.server.url());
        QCOMPARE(cookieAt(at, restarted), "new=1"_ba);
        // Nor does it stay in the file.
        at.server.answer(200, "{}", {"Set-Cookie: more=1; Max-Age=60"});
        auto call = post(restarted);
        QVERIFY(call.finish());
        const auto kept = [&] { return test::contentOf(file); };
        QTRY_VERIFY_WITH_TIMEOUT(kept().contains("more=1"), test::diskPatience);
        QVERIFY(kept().contains("new=1") && !kept().contains("old=1"));
    }

    void aDamagedFileCountsAsEmpty_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << ""_ba;
        QTest::newRow("cut off") << "[{\"host\":\"127.0.0.1\",\"cook"_ba;
        QTest::newRow("bytes") << QByteArray::fromHex("00ff80fe7b");
        QTest::newRow("of another kind") << "{\"host\":1}"_ba;
        QTest::newRow("odd entries")
            << "[1,null,{},{\"host\":2,\"cookie\":[]},{\"host\":\"h\"}]"_ba;
    }
    void aDamagedFileCountsAsEmpty() {
        QFETCH(QByteArray, content);
        QTemporaryDir folder;
        const QString file = folder.filePath(u"cookies"_s);
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(content);
        out.close();
        if (!content.startsWith("[1"))
            QTest::ignoreMessage(QtWarningMsg,
                                 "The saved session cannot be read; its file is set aside");
        ClientFixture at;
        at.client = std::make_unique<APIClient>(at.clock, at.connectivity, file);
        at.client->setBaseUrl(at.server.url());
        QCOMPARE(cookieAt(at, *at.client), ""_ba);
        QVERIFY(setCookie(at));
        QCOMPARE(cookieAt(at, *at.client), "sid=1"_ba);
    }

    void aPlaceThatCannotBeWrittenLosesNothingButTheRestart() {
        ClientFixture at;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^The session cannot be saved"_s));
        // Where nobody can make a file.
        at.client = std::make_unique<APIClient>(at.clock, at.connectivity, u"/proc/kiv/cookies"_s);
        at.client->setBaseUrl(at.server.url());
        QVERIFY(setCookie(at));
        QCOMPARE(cookieAt(at, *at.client), "sid=1"_ba);
    }
};

QTEST_GUILESS_MAIN(RedirectsTest)
#include "RedirectsTest.moc"
