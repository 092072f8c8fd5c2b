// Whether a call comes about: who may call whom, whose socket is let in, and every way to fail.

#include "sandbox/CallTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

class VoiceTest : public CallTest {
    Q_OBJECT

private Q_SLOTS:
    void scriptIsServedForGood() {
        const auto reply = httplib::Client("127.0.0.1", m_voice->sandbox().port())
                               .Get("/vendor/elevenlabs-client.1.21.0.js");
        QCOMPARE(reply->body, "window.here = 1;");
        QVERIFY(reply->get_header_value("Content-Type").starts_with("text/javascript"));
        QVERIFY(reply->get_header_value("Cache-Control").find("immutable") != std::string::npos);
        m_voice->order({u"bad-json,path=/vendor/"_s});
        QCOMPARE(m_voice->client().get(u"/vendor/elevenlabs-client.1.21.0.js"_s).body, "window.");
    }

    void oneCallAtATime() {
        m_voice->mint();
        QCOMPARE(m_voice->tryMint().code(), u"call_in_progress"_s);
        Client other(m_voice->sandbox().port());
        QVERIFY(!other.signUp(u"other-%1@example.com"_s.arg(m_voice->call())).isEmpty());
        QCOMPARE(other.post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_voice->call()}}).status, 404);
        QCOMPARE(m_voice->tryMint().status, 409);
        QCOMPARE(m_voice->endCall().status, 200);
        m_voice->mint();
    }

    void foreignSocketsAreRefused_data() {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("into");
        QTest::addColumn<QString>("protocol");
        const QString own = m_voice->sandbox().url();
        QTest::newRow("page of another site")
            << u"http://evil.example"_s << QString() << QString() << u"convai"_s;
        QTest::newRow("no page") << QString() << QString() << QString() << u"convai"_s;
        QTest::newRow("another host") << own << u"127.0.0.1"_s << u"localhost"_s << u"convai"_s;
        QTest::newRow("wrong token") << own << u"token="_s << u"token=x"_s << u"convai"_s;
        QTest::newRow("no token") << own << u"token="_s << u"t="_s << u"convai"_s;
        QTest::newRow("another path") << own << u"/voice/"_s << u"/noise/"_s << u"convai"_s;
        QTest::newRow("no protocol") << own << QString() << QString() << QString();
    }

    void foreignSocketsAreRefused() {
        QFETCH(QString, origin);
        QFETCH(QString, change);
        QFETCH(QString, into);
        QFETCH(QString, protocol);
        const QString address = m_voice->mintAddress();
        {
            Caller foreign(origin);
            foreign.dial(QString(address).replace(change, into), protocol);
            QVERIFY(foreign.waitForClose());
            QCOMPARE(foreign.count(u"conversation_initiation_metadata"_s), 0);
            // To pages of others there is not even a socket.
            QCOMPARE(foreign.socket().closeCode() == QWebSocketProtocol::CloseCodePolicyViolated,
                     origin == m_voice->sandbox().url());
        }
        Caller caller(m_voice->sandbox().url()); // and the token is still good
        caller.begin(address);
        QVERIFY(!caller.next(u"conversation_initiation_metadata"_s).isEmpty());
    }

    void noiseIsCutOff_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("times");
        QTest::addColumn<int>("code");
        QTest::newRow("no JSON") << QByteArray("hello") << 1 << 1007;
        QTest::newRow("a list") << QByteArray("[1]") << 1 << 1007;
        QTest::newRow("too large") << QByteArray(300 * 1024, ' ') << 1 << 1009;
        QTest::newRow("too many") << QByteArray("{}") << 20'000 << 1008;
    }

    void noiseIsCutOff() {
        QFETCH(QByteArray, text);
        QFETCH(int, times);
        QFETCH(int, code);
        Caller caller(m_voice->sandbox().url());
        caller.begin(m_voice->mintAddress());
        QVERIFY(!caller.next(u"conversation_initiation_metadata"_s).isEmpty());
        for (int i = 0; i < times; ++i)
            caller.socket().sendTextMessage(QString::fromLatin1(text));
        QVERIFY(caller.waitForClose());
        QCOMPARE(static_cast<int>(caller.socket().closeCode()), code);
    }

    void refusals_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("code");
        QTest::newRow("balance") << u"insufficient_balance"_s << 402 << u"insufficient_balance"_s;
        QTest::newRow("busy") << u"call_in_progress"_s << 409 << u"call_in_progress"_s;
        QTest::newRow("rate") << u"rate_limited"_s << 429 << u"rate_limited"_s;
        QTest::newRow("none") << u"voice_unavailable"_s << 503 << u"voice_unavailable"_s;
        QTest::newRow("provider") << QString() << 502 << u"token_mint_failed"_s;
        QTest::newRow("own key") << u"byok_voice_setup_failed"_s << 502
                                 << u"byok_voice_setup_failed"_s;
    }

    void refusals() {
        QFETCH(QString, fault);
        m_voice->order({u"call-refused"_s + (fault.isEmpty() ? QString() : u",code="_s + fault)});
        const Response response = m_voice->tryMint();
        QTEST(response.status, "status");
        QTEST(response.code(), "code");
        QCOMPARE(response.error().contains(u"rate limit"_s, Qt::CaseInsensitive),
                 fault == u"rate_limited"_s);
    }

    void capabilityTellsWhatIsThere() {
        const auto capability = [this] {
            return m_voice->client().get(u"/api/v2/voice/capability"_s).json();
        };
        QCOMPARE(capability(), (QJsonObject{{u"available"_s, true}}));
        m_voice->order({u"call-unavailable,code=insufficient_balance"_s});
        QCOMPARE(capability()[u"reason"_s], u"insufficient_balance"_s);
        m_voice->order({});
        const QString path = m_voice->scriptPath();
        QVERIFY(QFile::rename(path, path + u"-"_s));
        QCOMPARE(capability(),
                 (QJsonObject{{u"available"_s, false}, {u"reason"_s, u"not_configured"_s}}));
        QCOMPARE(m_voice->tryMint().code(), u"voice_unavailable"_s);
        QCOMPARE(m_voice->client().get(u"/vendor/elevenlabs-client.1.21.0.js"_s).status, 404);
        QVERIFY(QFile::rename(path + u"-"_s, path));
    }

    void transports() {
        const auto keys = [this](const QString &fault) {
            m_voice->order({fault});
            const QJsonObject session = m_voice->mint();
            m_voice->endCall();
            return QString(session.contains(u"signed_url"_s) ? u"s"_s : QString()) +
                   (session.contains(u"token"_s) ? u"t"_s : QString());
        };
        QCOMPARE(keys(u"call-token-only"_s), u"t"_s);
        QCOMPARE(keys(u"call-with-token"_s), u"st"_s);
        QCOMPARE(keys(u"call-no-transport"_s), QString());
    }

    void brokenSockets_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<bool>("begins");
        QTest::addColumn<bool>("speaks");
        QTest::addColumn<bool>("lasts");
        QTest::newRow("refused") << u"close,path=/voice/socket"_s << false << false << false
                                 << false;
        QTest::newRow("status") << u"status=403,path=/voice/socket"_s << false << false << false
                                << false;
        QTest::newRow("silent") << u"stream-stall=1,path=/voice/socket"_s << true << true << false
                                << true;
        QTest::newRow("dead") << u"stream-stall=0,path=/voice/socket"_s << true << false << false
                              << true;
        QTest::newRow("dropped") << u"stream-drop=2,path=/voice/socket"_s << true << true << false
                                 << false;
        QTest::newRow("garbled") << u"bad-json,path=/voice/socket"_s << true << false << false
                                 << true;
        QTest::newRow("garbled later")
            << u"bad-json=1,path=/voice/socket"_s << true << true << false << true;
    }

    void brokenSockets() {
        QFETCH(QString, fault);
        QFETCH(bool, begins);
        m_voice->order({fault});
        Caller caller(m_voice->sandbox().url());
        QSignalSpy opened(&caller.socket(), &QWebSocket::connected);
        caller.begin(m_voice->mintAddress());
        const bool spoke = !caller.next(u"audio"_s, 700).isEmpty();
        QTEST(spoke, "speaks");
        QTEST(opened.count() == 1, "opens");
        QCOMPARE(caller.count(u"conversation_initiation_metadata"_s) == 1, begins);
        QTEST(!caller.waitForClose(0), "lasts");
        QCOMPARE(!caller.unreadable().isEmpty(), fault.startsWith(u"bad-json"_s));
    }

    void lateSocket() {
        m_voice->order({u"latency=400,path=/voice/socket"_s});
        Caller caller(m_voice->sandbox().url());
        QElapsedTimer timer;
        const QString address = m_voice->mintAddress();
        timer.start();
        caller.begin(address);
        QVERIFY(!caller.next(u"conversation_initiation_metadata"_s).isEmpty());
        QVERIFY2(timer.elapsed() >= 400, qPrintable(QString::number(timer.elapsed())));
    }

    void whoCanBeCalled() {
        QCOMPARE(m_voice->tryMint(u"Nobody"_s).status, 404);
        QCOMPARE(m_voice->tryMint(u"Anchor"_s).code(), u"work_halted"_s);
        Client other(m_voice->sandbox().port());
        QVERIFY(!other.signUp(u"foreign@example.com"_s).isEmpty());
        QCOMPARE(
            other.post(u"/api/v2/voice/session"_s, {{u"agent_id"_s, m_voice->agentId(u"Scout"_s)}})
                .status,
            404);
        QCOMPARE(Client(m_voice->sandbox().port()).post(u"/api/v2/voice/session"_s).status, 401);
    }
};

QTEST_GUILESS_MAIN(VoiceTest)
#include "VoiceTest.moc"
