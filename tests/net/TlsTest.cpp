// Encryption: a server that cannot prove who it is hears nothing of what was meant for it.

#include "ClientFixture.h"
#include "net/ChatStreamClient.h"
#include "net/KivAPI.h"
#include "net/UpdateCheck.h"
#include "support/TlsServer.h"

#include <QSslSocket>

using namespace kiv;
using namespace kiv::net;
using namespace kiv::test;
using namespace Qt::StringLiterals;

class TlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        if (!QSslSocket::supportsSsl())
            QSKIP("This Qt has no TLS");
        m_authority = makeIdentity(nullptr, 30, nullptr);
        m_before = QSslConfiguration::defaultConfiguration();
        QSslConfiguration trusting = m_before;
        trusting.addCaCertificate(m_authority.shown());
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
    void cleanupTestCase() { QSslConfiguration::setDefaultConfiguration(m_before); }

    void servers_data() {
        QTest::addColumn<QByteArray>("names");
        QTest::addColumn<int>("days");
        QTest::addColumn<bool>("vouched");
        QTest::addColumn<bool>("trusted");
        QTest::newRow("as it should be") << "IP:127.0.0.1"_ba << 30 << true << true;
        QTest::newRow("nobody vouches for it") << "IP:127.0.0.1"_ba << 30 << false << false;
        QTest::newRow("of another host")
            << "DNS:kiv.example,IP:127.0.0.2"_ba << 30 << true << false;
        QTest::newRow("expired") << "IP:127.0.0.1"_ba << -1 << true << false;
    }
    void servers() {
        QFETCH(QByteArray, names);
        QFETCH(int, days);
        QFETCH(bool, vouched);
        QFETCH(bool, trusted);
        ClientFixture at;
        TlsServer server(makeIdentity(names.constData(), days, vouched ? &m_authority : nullptr));
        at.client->setBaseUrl(server.url());
        QNetworkCookie session("sid", "s3cret");
        session.setSecure(true);
        at.client->cookies().setCookiesFromUrl({session}, server.url());

        auto post = Call<QByteArray>([&](Cancel cancel) {
            return at.client->postRaw(u"login"_s, {{u"password"_s, u"lantern"_s}}, cancel);
        });
        QVERIFY(post.finish());
        QCOMPARE(post.succeeded(), trusted);
        QCOMPARE(post.failedWith(APIError::Kind::Transport), !trusted);
        const MultipartFile file{.name = u"a"_s, .mime = u"text/plain"_s, .data = "lantern"};
        auto upload = Call<QByteArray>([&](Cancel cancel) {
            return at.client->postMultipart(u"files"_s, {file}, {}, cancel);
        });
        QVERIFY(upload.finish());
        QCOMPARE(upload.succeeded(), trusted);
        auto update = Call<std::optional<UpdateInfo>>([&](Cancel cancel) {
            return UpdateCheck::latest(at.client.get(), AppVersion::of(u"1"_s, {}), cancel);
        });
        QVERIFY(update.finish());
        const int before = server.contacts;
        ChatStreamClient stream(*at.client);
        stream.start(ChatTarget::agent(u"7"_s).streamPath(), {.onMessage = [](const ChatRow &) {}});
        QTRY_VERIFY(server.contacts > before);
        if (trusted)
            QTRY_VERIFY(server.received.contains("/stream"));
        QTRY_COMPARE(at.clock.pending() > 0, true); // it waits for its next try
        // Neither cookie nor password, and no path: nothing at all was said.
        QCOMPARE(server.received.count("s3cret"), trusted ? 4 : 0);
        QCOMPARE(server.received.count("lantern"), trusted ? 2 : 0);
        QCOMPARE(server.received.isEmpty(), !trusted);
    }

    /// What was encrypted does not go on unencrypted, not even as a bare question.
    void redirectsToPlainHttpAreRefused() {
        ClientFixture at;
        at.server.answer(200, "{}");
        TlsServer server(makeIdentity("IP:127.0.0.1", 30, &m_authority));
        server.answer =
            "HTTP/1.1 307 Moved\r\nContent-Length: 0\r\nLocation: " + at.server.url().toEncoded() +
            "/there\r\n\r\n";
        at.client->setBaseUrl(server.url());
        auto post = Call<QByteArray>([&](Cancel cancel) {
            return at.client->postRaw(u"login"_s, {{u"password"_s, u"lantern"_s}}, cancel);
        });
        QVERIFY(post.finish());
        QVERIFY(post.failedWith(APIError::Kind::Transport));
        QVERIFY(server.received.contains("lantern"));
        QCOMPARE(at.server.count(), 0);
    }

private:
    Identity m_authority;
    QSslConfiguration m_before;
};

QTEST_GUILESS_MAIN(TlsTest)
#include "TlsTest.moc"
