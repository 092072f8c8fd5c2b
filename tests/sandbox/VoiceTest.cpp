// Calls: agreed on over HTTP, held over a WebSocket, and remembered.

#include "sandbox/Caller.h"
#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::testing;

class VoiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        // The script itself does not matter here, only that it is there.
        QVERIFY(QDir(m_share.path()).mkpath(u"vendor"_s));
        QFile script(m_share.filePath(m_script));
        QVERIFY(script.open(QIODevice::WriteOnly) && script.write("window.here = 1;") > 0);
        script.close();
        start();
        QVERIFY(!m_client->signUp(u"caller@example.com"_s).isEmpty());
        for (const QJsonValue agent :
             m_client->get(u"/api/v2/custom-agents"_s).json()[u"agents"_s].toArray()) {
            m_agents.insert(agent[u"name"_s].toString(), agent[u"id"_s].toString());
        }
        QVERIFY(m_agents.contains(u"Scout"_s));
    }

    void cleanup() {
        order({});
        if (!m_call.isEmpty()) {
            m_client->post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_call}});
        }
    }

    void cleanupTestCase() {
        QVERIFY(m_sandbox->closeInput());
        QCOMPARE(m_sandbox->complaints(), QByteArray());
    }

    void scriptIsServedForGood() {
        const auto reply = httplib::Client("127.0.0.1", m_sandbox->port())
                               .Get("/vendor/elevenlabs-client.1.21.0.js");
        QCOMPARE(reply->body, "window.here = 1;");
        QVERIFY(reply->get_header_value("Content-Type").starts_with("text/javascript"));
        QVERIFY(reply->get_header_value("Cache-Control").find("immutable") != std::string::npos);
        order({u"bad-json,path=/vendor/"_s});
        QCOMPARE(m_client->get(u"/vendor/elevenlabs-client.1.21.0.js"_s).body, "window.");
    }

    void conversation() {
        const QJsonObject session = mint();
        QCOMPARE(session[u"max_duration_secs"_s].toInt(), 600);
        QVERIFY(!session.contains(u"token"_s));
        const QString digest = u"You: Who is on holiday?\nAgent: Nobody is."_s;
        Caller caller(m_sandbox->url());
        caller.answerPings();
        caller.begin(session[u"signed_url"_s].toString(),
                     {{u"tamrix_call_id"_s, m_call}, {u"chat_digest"_s, digest}});
        const QJsonObject metadata = caller.next(u"conversation_initiation_metadata"_s);
        QCOMPARE(metadata[u"conversation_initiation_metadata_event"_s][u"conversation_id"_s],
                 m_call);
        const QString greeting = said(caller.next(u"agent_response"_s));
        QVERIFY2(greeting.contains(u"Scout"_s), qPrintable(greeting));
        const QByteArray sound = QByteArray::fromBase64(
            caller.next(u"audio"_s)[u"audio_event"_s][u"audio_base_64"_s].toString().toLatin1());
        QVERIFY(sound.size() > 1000);
        QVERIFY(sound.count('\0') < sound.size() / 2);

        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"What is blocked?"_s}});
        QCOMPARE(heard(caller.next(u"user_transcript"_s)), u"What is blocked?"_s);
        const QString answer = said(caller.next(u"agent_response"_s));
        QVERIFY2(answer.contains(u"task"_s) || answer.contains(u"blocked"_s), qPrintable(answer));

        caller.send(
            {{u"type"_s, u"contextual_update"_s}, {u"text"_s, u"The owner is in a hurry."_s}});
        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"What did I ask earlier?"_s}});
        const QString recalled = said(caller.next(u"agent_response"_s));
        QVERIFY2(recalled.contains(u"Who is on holiday?"_s), qPrintable(recalled));

        QVERIFY(!caller.next(u"ping"_s).isEmpty());
        QTRY_VERIFY(seen()[u"pings_answered"_s].toInt() > 0);
        caller.socket().close();
        QTRY_COMPARE(seen()[u"state"_s].toString(), u"ended"_s);
        QCOMPARE(seen()[u"digest"_s], digest);
        QCOMPARE(seen()[u"named_call_id"_s], m_call);
        QCOMPARE(seen()[u"contextual_updates"_s], QJsonArray{u"The owner is in a hurry."_s});

        const QJsonArray lines = detail(m_call)[u"transcript"_s].toArray();
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[0][u"role"_s], u"agent"_s);
        QCOMPARE(lines[1][u"role"_s], u"user"_s);
        QCOMPARE(lines[2][u"text"_s], answer);
        const QJsonObject entry = calls()[0].toObject();
        QCOMPARE(entry[u"id"_s], m_call);
        QCOMPARE(entry[u"status"_s], u"done"_s);
        QCOMPARE(entry[u"snippet"_s], u"What is blocked?"_s);
        QCOMPARE(entry[u"has_transcript"_s], true);
    }

    void callerWhoSpeaksIsHeardAndInterrupts() {
        order({u"call-deaf"_s});
        Caller caller(m_sandbox->url());
        caller.begin(mint()[u"signed_url"_s].toString());
        const QString greeting = said(caller.next(u"agent_response"_s));
        QVERIFY(!caller.next(u"audio"_s).isEmpty());
        caller.sound(100, 0);
        caller.sound(600, 8000);
        QVERIFY(!caller.next(u"interruption"_s).isEmpty());
        const QJsonObject correction =
            caller.next(u"agent_response_correction"_s)[u"agent_response_correction_event"_s]
                .toObject();
        QCOMPARE(correction[u"original_agent_response"_s], greeting);
        QVERIFY(correction[u"corrected_agent_response"_s].toString().size() < greeting.size());
        caller.sound(900, 0);
        QCOMPARE(heard(caller.next(u"user_transcript"_s)), u"…"_s);
        QVERIFY(said(caller.next(u"agent_response"_s)).contains(u"type"_s));
        QVERIFY(seen()[u"muted"_s].toBool());
        QCOMPARE(qRound(seen()[u"audio_seconds"_s].toDouble() * 10), 16);
        caller.sound(100, 200);
        QTRY_VERIFY(!seen()[u"muted"_s].toBool());
        QCOMPARE(detail(m_call)[u"transcript"_s][0][u"text"_s],
                 correction[u"corrected_agent_response"_s]);
    }

    void oneCallAtATime() {
        mint();
        QCOMPARE(tryMint().code(), u"call_in_progress"_s);
        Client other(m_sandbox->port());
        QVERIFY(!other.signUp(u"other-%1@example.com"_s.arg(m_call)).isEmpty());
        QCOMPARE(other.post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_call}}).status, 404);
        QCOMPARE(tryMint().status, 409);
        QCOMPARE(m_client->post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_call}}).status, 200);
        mint();
    }

    void endingClosesTheSocketAndSpendsTheToken() {
        const QString address = mint()[u"signed_url"_s].toString();
        Caller caller(m_sandbox->url());
        caller.begin(address);
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        Caller second(m_sandbox->url()); // one socket at a time
        second.begin(address);
        QVERIFY(second.waitForClose());
        QCOMPARE(second.socket().closeCode(), QWebSocketProtocol::CloseCodePolicyViolated);
        m_client->post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_call}});
        QVERIFY(caller.waitForClose());
        QCOMPARE(caller.socket().closeCode(), QWebSocketProtocol::CloseCodeNormal);
        Caller third(m_sandbox->url());
        third.begin(address);
        QVERIFY(third.waitForClose());
        QVERIFY(!third.socket().closeReason().isEmpty());
    }

    void droppedCallIsTakenUpAgain() {
        order({u"call-drop=300,times=1"_s});
        const QString address = mint()[u"signed_url"_s].toString();
        Caller caller(m_sandbox->url());
        caller.begin(address);
        QVERIFY(caller.waitForClose());
        QTRY_COMPARE(seen()[u"state"_s].toString(), u"dropped"_s);
        QCOMPARE(tryMint().code(), u"call_in_progress"_s);
        Caller again(m_sandbox->url());
        again.begin(address);
        QVERIFY(said(again.next(u"agent_response"_s)).contains(u"back"_s));
        QCOMPARE(seen()[u"sockets"_s].toInt(), 2);
        QCOMPARE(calls()[0][u"status"_s], u"in_progress"_s);
    }

    void foreignSocketsAreRefused_data() {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("into");
        QTest::addColumn<QString>("protocol");
        const QString own = m_sandbox->url();
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
        const QString address = mint()[u"signed_url"_s].toString();
        {
            Caller foreign(origin);
            foreign.dial(QString(address).replace(change, into), protocol);
            QVERIFY(foreign.waitForClose());
            QCOMPARE(foreign.count(u"conversation_initiation_metadata"_s), 0);
        }
        Caller caller(m_sandbox->url()); // and the token is still good
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
        QTest::newRow("too many") << QByteArray("{}") << 1500 << 1008;
    }

    void noiseIsCutOff() {
        QFETCH(QByteArray, text);
        QFETCH(int, times);
        QFETCH(int, code);
        Caller caller(m_sandbox->url());
        caller.begin(mint()[u"signed_url"_s].toString());
        QVERIFY(!caller.next(u"conversation_initiation_metadata"_s).isEmpty());
        for (int i = 0; i < times; ++i) {
            caller.socket().sendTextMessage(QString::fromLatin1(text));
        }
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
        order({u"call-refused"_s + (fault.isEmpty() ? QString() : u",code="_s + fault)});
        const Response response = tryMint();
        QTEST(response.status, "status");
        QTEST(response.code(), "code");
        QCOMPARE(response.error().contains(u"rate limit"_s, Qt::CaseInsensitive),
                 fault == u"rate_limited"_s);
    }

    void capabilityTellsWhatIsThere() {
        const auto capability = [this] {
            return m_client->get(u"/api/v2/voice/capability"_s).json();
        };
        QCOMPARE(capability(), (QJsonObject{{u"available"_s, true}}));
        order({u"call-unavailable,code=insufficient_balance"_s});
        QCOMPARE(capability()[u"reason"_s], u"insufficient_balance"_s);
        order({});
        const QString path = m_share.filePath(m_script);
        QVERIFY(QFile::rename(path, path + u"-"_s));
        QCOMPARE(capability(),
                 (QJsonObject{{u"available"_s, false}, {u"reason"_s, u"not_configured"_s}}));
        QCOMPARE(tryMint().code(), u"voice_unavailable"_s);
        QCOMPARE(m_client->get(u"/vendor/elevenlabs-client.1.21.0.js"_s).status, 404);
        QVERIFY(QFile::rename(path + u"-"_s, path));
    }

    void transports() {
        const auto keys = [this](const QString &fault) {
            order({fault});
            const QJsonObject session = mint();
            m_client->post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_call}});
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
        order({fault});
        Caller caller(m_sandbox->url());
        QSignalSpy opened(&caller.socket(), &QWebSocket::connected);
        caller.begin(mint()[u"signed_url"_s].toString());
        const bool spoke = !caller.next(u"audio"_s, 700).isEmpty();
        QTEST(spoke, "speaks");
        QTEST(opened.count() == 1, "opens");
        QCOMPARE(caller.count(u"conversation_initiation_metadata"_s) == 1, begins);
        QTEST(!caller.waitForClose(0), "lasts");
        QCOMPARE(!caller.unreadable().isEmpty(), fault.startsWith(u"bad-json"_s));
    }

    void lateSocket() {
        order({u"latency=400,path=/voice/socket"_s});
        Caller caller(m_sandbox->url());
        QElapsedTimer timer;
        const QString address = mint()[u"signed_url"_s].toString();
        timer.start();
        caller.begin(address);
        QVERIFY(!caller.next(u"conversation_initiation_metadata"_s).isEmpty());
        QVERIFY2(timer.elapsed() >= 400, qPrintable(QString::number(timer.elapsed())));
    }

    void longestTimeIsKept() {
        order({u"call-limit=0"_s});
        const QJsonObject session = mint();
        QCOMPARE(session[u"max_duration_secs"_s].toInt(), 0);
        Caller caller(m_sandbox->url());
        caller.begin(session[u"signed_url"_s].toString());
        QVERIFY(caller.waitForClose(8000));
        QCOMPARE(caller.socket().closeCode(), QWebSocketProtocol::CloseCodeNormal);
        QVERIFY(!caller.socket().closeReason().isEmpty());
    }

    void whoCanBeCalled() {
        QCOMPARE(tryMint(u"Nobody"_s).status, 404);
        QCOMPARE(tryMint(u"Anchor"_s).code(), u"work_halted"_s);
        Client other(m_sandbox->port());
        QVERIFY(!other.signUp(u"foreign@example.com"_s).isEmpty());
        QCOMPARE(
            other.post(u"/api/v2/voice/session"_s, {{u"agent_id"_s, m_agents[u"Scout"_s]}}).status,
            404);
        QCOMPARE(Client(m_sandbox->port()).post(u"/api/v2/voice/session"_s).status, 401);
    }

    void pastCallsOutliveTheServer() {
        Caller caller(m_sandbox->url());
        caller.begin(mint()[u"signed_url"_s].toString());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        const QString call = m_call;
        const httplib::Headers session = m_client->headers;
        QVERIFY(m_sandbox->closeInput());
        start();
        const auto cookie = session.find("Cookie");
        m_client->headers.emplace("Cookie", cookie->second);
        QCOMPARE(calls()[0][u"id"_s], call);
        QCOMPARE(calls()[0][u"status"_s], u"done"_s);
        QCOMPARE(detail(call)[u"transcript"_s].toArray().size(), 1);
        mint(); // nothing of it is in the way
        QCOMPARE(m_client->get(u"/api/v2/voice/calls/"_s + m_call).status, 404); // never came about
        QCOMPARE(m_client->get(u"/api/v2/voice/calls?limit=1&agent_id="_s + m_agents[u"Scout"_s])
                     .json()[u"calls"_s]
                     .toArray()
                     .size(),
                 1);
    }

private:
    void start() {
        m_sandbox = std::make_unique<SandboxProcess>(m_folder.path(),
                                                     QStringList{u"--share-dir"_s, m_share.path()});
        m_client = std::make_unique<Client>(m_sandbox->port());
    }

    void order(const QStringList &faults) {
        QCOMPARE(
            m_client
                ->post(u"/_control/faults"_s, {{u"faults"_s, QJsonArray::fromStringList(faults)}})
                .status,
            200);
    }

    Response tryMint(const QString &agent = u"Scout"_s) {
        return m_client->post(u"/api/v2/voice/session"_s, {{u"agent_id"_s, m_agents.value(agent)}});
    }

    QJsonObject mint() {
        const Response response = tryMint();
        if (response.status != 200) {
            qWarning("%s", response.body.constData());
        }
        m_call = response.json()[u"call_id"_s].toString();
        return response.json();
    }

    QJsonArray calls() {
        return m_client->get(u"/api/v2/voice/calls?agent_id="_s + m_agents[u"Scout"_s])
            .json()[u"calls"_s]
            .toArray();
    }

    QJsonObject detail(const QString &call) {
        return m_client->get(u"/api/v2/voice/calls/"_s + call).json()[u"call"_s].toObject();
    }

    QJsonObject seen() { return m_client->get(u"/_control/voice"_s).json(); }

    static QString said(const QJsonObject &message) {
        return message[u"agent_response_event"_s][u"agent_response"_s].toString();
    }

    static QString heard(const QJsonObject &message) {
        return message[u"user_transcription_event"_s][u"user_transcript"_s].toString();
    }

    const QString m_script = u"vendor/elevenlabs-client.1.21.0.js"_s;
    QTemporaryDir m_share;
    QTemporaryDir m_folder;
    std::unique_ptr<SandboxProcess> m_sandbox;
    std::unique_ptr<Client> m_client;
    QHash<QString, QString> m_agents;
    QString m_call; ///< the last one that was minted
};

QTEST_GUILESS_MAIN(VoiceTest)
#include "VoiceTest.moc"
