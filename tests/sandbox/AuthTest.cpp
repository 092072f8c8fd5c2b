// Who gets in: sign-up, sign-in, sessions, and the checks that keep other sites out.

#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

class AuthTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_folder.isValid());
        m_sandbox = std::make_unique<SandboxProcess>(m_folder.path());
        QVERIFY(m_sandbox->ready());
        Client client(m_sandbox->port());
        QVERIFY(!client.signUp(u"taken@example.com"_s).isEmpty());
    }

    void cleanupTestCase() {
        QVERIFY(m_sandbox->closeInput());
        QCOMPARE(m_sandbox->complaints(), QByteArray());
    }

    void refusals_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QJsonObject>("body");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        const auto form = [](const QString &email, const QString &password) {
            return QJsonObject{{u"email"_s, email}, {u"password"_s, password}};
        };
        const QString signup = u"signup"_s;
        const QString login = u"login"_s;
        const QString good = u"lantern-42"_s;
        QTest::newRow("taken") << signup << form(u"taken@example.com"_s, good) << 409
                               << u"email_taken"_s;
        QTest::newRow("taken in capitals")
            << signup << form(u" Taken@Example.com "_s, good) << 409 << u"email_taken"_s;
        for (const char *email : {"", "plain", "@example.com", "a@", "a@nodot", "a b@example.com",
                                  "a@b@example.com", "a@example."})
            QTest::addRow("address '%s'", email)
                << signup << form(QString::fromLatin1(email), good) << 400 << u"invalid_email"_s;
        QTest::newRow("short password")
            << signup << form(u"new@example.com"_s, u"seven77"_s) << 400 << u"weak_password"_s;
        QTest::newRow("long password") << signup << form(u"new@example.com"_s, QString(257, u'x'))
                                       << 400 << u"weak_password"_s;
        QTest::newRow("password is a number")
            << signup << QJsonObject{{u"email"_s, u"new@example.com"_s}, {u"password"_s, 12345678}}
            << 400 << u"bad_value"_s;
        QTest::newRow("wrong password") << login << form(u"taken@example.com"_s, u"lantern-43"_s)
                                        << 401 << u"invalid_credentials"_s;
        QTest::newRow("unknown address")
            << login << form(u"nobody@example.com"_s, good) << 401 << u"invalid_credentials"_s;
        QTest::newRow("sample, wrong password")
            << login << form(m_sandbox->sample().value(u"email"_s).toString(), good) << 401
            << u"invalid_credentials"_s;
    }

    void refusals() {
        QFETCH(QString, path);
        QFETCH(QJsonObject, body);
        Client client(m_sandbox->port());
        const Response response = client.post(u"/api/v2/auth/"_s + path, body);
        QTEST(response.status, "status");
        QTEST(response.code(), "code");
        QVERIFY(!response.error().isEmpty());
        QVERIFY(response.cookie.isEmpty());
        QCOMPARE(client.get(u"/api/v2/auth/me"_s).status, 401);
    }

    void sessionOpensAndCloses() {
        Client client(m_sandbox->port());
        const Response login =
            client.post(u"/api/v2/auth/login"_s,
                        {{u"email"_s, u"  TAKEN@example.com"_s}, {u"password"_s, u"lantern-42"_s}});
        QCOMPARE(login.status, 200);
        for (const char *rule : {"HttpOnly", "SameSite=Lax", "Path=/", "Max-Age=31536000"})
            QVERIFY2(login.cookie.contains(rule), rule);
        client.keepSession(login);
        const QJsonObject me = client.get(u"/api/v2/auth/me"_s).json();
        QCOMPARE(me.value(u"email"_s).toString(), u"taken@example.com"_s);
        QCOMPARE(client.post(u"/api/v2/auth/logout"_s).status, 200);
        QCOMPARE(client.get(u"/api/v2/auth/me"_s).status, 401);
    }

    void sampleAccountWorks() {
        Client client(m_sandbox->port());
        const Response login = client.post(u"/api/v2/auth/login"_s, m_sandbox->sample());
        QCOMPARE(login.status, 200);
        client.keepSession(login);
        QCOMPARE(client.get(u"/api/v2/projects"_s).json().value(u"projects"_s).toArray().size(), 5);
        const QString file = m_folder.filePath(u"sample-password"_s);
        QCOMPARE(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        // What is offered goes on opening it.
        QJsonObject form = m_sandbox->sample();
        QCOMPARE(
            client
                .post(u"/api/v2/user/password"_s, {{u"current_password"_s, form[u"password"_s]},
                                                   {u"new_password"_s, u"harbour-17"_s}})
                .status,
            200);
        QCOMPARE(client.post(u"/api/v2/auth/login"_s, form).status, 200);
        form[u"password"_s] = u"harbour-17"_s;
        QCOMPARE(client.post(u"/api/v2/auth/login"_s, form).status, 200);
    }

    void passwordChangeSignsOthersOut() {
        Client here(m_sandbox->port());
        here.signUp(u"change@example.com"_s);
        Client there(m_sandbox->port());
        there.keepSession(
            there.post(u"/api/v2/auth/login"_s,
                       {{u"email"_s, u"change@example.com"_s}, {u"password"_s, u"lantern-42"_s}}));
        const auto change = [&](const QString &current, const QString &next) {
            return here.post(u"/api/v2/user/password"_s,
                             {{u"current_password"_s, current}, {u"new_password"_s, next}});
        };
        QCOMPARE(change(u"wrong-one"_s, u"harbour-17"_s).code(), u"wrong_password"_s);
        QCOMPARE(change(u"lantern-42"_s, u"short"_s).code(), u"weak_password"_s);
        QCOMPARE(there.get(u"/api/v2/auth/me"_s).status, 200);
        QCOMPARE(change(u"lantern-42"_s, u"harbour-17"_s).status, 200);
        QCOMPARE(here.get(u"/api/v2/auth/me"_s).status, 200);
        QCOMPARE(there.get(u"/api/v2/auth/me"_s).status, 401);
    }

    void origins_data() {
        QTest::addColumn<QString>("header");
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("status");
        const QString port = QString::number(m_sandbox->port());
        QTest::newRow("own") << u"Origin"_s << u"http://127.0.0.1:"_s + port << 200;
        QTest::newRow("absent") << u"Origin"_s << QString() << 403;
        QTest::newRow("null") << u"Origin"_s << u"null"_s << 403;
        QTest::newRow("other site") << u"Origin"_s << u"https://evil.example"_s << 403;
        QTest::newRow("other port") << u"Origin"_s << u"http://127.0.0.1:1"_s << 403;
        QTest::newRow("other scheme") << u"Origin"_s << u"https://127.0.0.1:"_s + port << 403;
        QTest::newRow("longer") << u"Origin"_s << u"http://127.0.0.1:"_s + port + u"0"_s << 403;
        QTest::newRow("rebound name") << u"Host"_s << u"evil.example:"_s + port << 421;
        QTest::newRow("host without port") << u"Host"_s << u"127.0.0.1"_s << 421;
    }

    void origins() {
        QFETCH(QString, header);
        QFETCH(QString, value);
        QFETCH(int, status);
        Client client(m_sandbox->port());
        client.headers.erase(header.toStdString());
        if (!value.isEmpty())
            client.headers.emplace(header.toStdString(), value.toStdString());
        const Response response = client.post(u"/api/v2/auth/logout"_s);
        QCOMPARE(response.status, status);
        QCOMPARE(response.error().contains(u"CSRF"_s), status == 403);
    }

    void badRequests_data() {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("status");
        QTest::newRow("empty") << QByteArray() << 400;
        QTest::newRow("cut") << QByteArray("{\"email\": \"a") << 400;
        QTest::newRow("array") << QByteArray("[]") << 400;
        QTest::newRow("not UTF-8") << QByteArray("{\"email\": \"\xff\"}") << 400;
        QTest::newRow("huge") << QByteArray(1024 * 1024 + 1, ' ') << 413;
    }

    void badRequests() {
        QFETCH(QByteArray, body);
        Client client(m_sandbox->port());
        const Response response = client.postRaw(u"/api/v2/auth/login"_s, body);
        QTEST(response.status, "status");
        QVERIFY(!response.error().isEmpty());
    }

    void everythingElseNeedsASession() {
        Client client(m_sandbox->port());
        for (const char *path :
             {"projects", "projects/night-ferry/chat", "projects/night-ferry/chat/stream",
              "custom-agents", "orchestrator", "user/profile", "user/plan", "user/wallet",
              "voice/capability", "voice/calls"}) {
            const Response response = client.get(u"/api/v2/"_s + QString::fromLatin1(path));
            QVERIFY2(response.status == 401, path);
        }
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<SandboxProcess> m_sandbox;
};

QTEST_GUILESS_MAIN(AuthTest)
#include "AuthTest.moc"
