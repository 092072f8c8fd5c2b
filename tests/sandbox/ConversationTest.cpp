// What is said in a call, and what stays of it.

#include "sandbox/CallTest.h"
#include "sandbox/Stream.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

class ConversationTest : public CallTest {
    Q_OBJECT

private Q_SLOTS:
    void conversation() {
        const QJsonObject session = m_voice->mint();
        QCOMPARE(session[u"max_duration_secs"_s].toInt(), 600);
        QVERIFY(!session.contains(u"token"_s));
        const QString digest = u"You: Who is on holiday?\nAgent: Nobody is."_s;
        Caller caller(m_voice->sandbox().url());
        caller.answerPings();
        caller.begin(session[u"signed_url"_s].toString(),
                     {{u"tamrix_call_id"_s, m_voice->call()}, {u"chat_digest"_s, digest}});
        const QJsonObject metadata = caller.next(u"conversation_initiation_metadata"_s);
        QCOMPARE(metadata[u"conversation_initiation_metadata_event"_s][u"conversation_id"_s],
                 m_voice->call());
        const QString greeting = saidIn(caller.next(u"agent_response"_s));
        QVERIFY2(greeting.contains(u"Scout"_s), qPrintable(greeting));
        const QByteArray sound = QByteArray::fromBase64(
            caller.next(u"audio"_s)[u"audio_event"_s][u"audio_base_64"_s].toString().toLatin1());
        QVERIFY(sound.size() > 1000);
        QVERIFY(sound.count('\0') < sound.size() / 2);

        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"What is blocked?"_s}});
        QCOMPARE(heardIn(caller.next(u"user_transcript"_s)), u"What is blocked?"_s);
        const QString answer = saidIn(caller.next(u"agent_response"_s));
        QVERIFY2(answer.contains(u"task"_s) || answer.contains(u"blocked"_s), qPrintable(answer));

        caller.send(
            {{u"type"_s, u"contextual_update"_s}, {u"text"_s, u"The owner is in a hurry."_s}});
        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"What did I ask earlier?"_s}});
        const QString recalled = saidIn(caller.next(u"agent_response"_s));
        QVERIFY2(recalled.contains(u"Who is on holiday?"_s), qPrintable(recalled));

        QVERIFY(!caller.next(u"ping"_s).isEmpty());
        QTRY_VERIFY(m_voice->seen()[u"pings_answered"_s].toInt() > 0);
        caller.socket().close();
        QTRY_COMPARE(m_voice->seen()[u"state"_s].toString(), u"ended"_s);
        QCOMPARE(m_voice->seen()[u"digest"_s], digest);
        QCOMPARE(m_voice->seen()[u"named_call_id"_s], m_voice->call());
        QCOMPARE(m_voice->seen()[u"contextual_updates"_s],
                 QJsonArray{u"The owner is in a hurry."_s});

        const QJsonArray lines = m_voice->detail(m_voice->call())[u"transcript"_s].toArray();
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[0][u"role"_s], u"agent"_s);
        QCOMPARE(lines[1][u"role"_s], u"user"_s);
        QVERIFY(lines[2][u"text"_s].toString().endsWith(u'…')); // the next question came into it
        QCOMPARE(lines[4][u"text"_s], recalled);
        const QJsonObject entry = m_voice->calls()[0].toObject();
        QCOMPARE(entry[u"id"_s], m_voice->call());
        QCOMPARE(entry[u"status"_s], u"done"_s);
        QCOMPARE(entry[u"snippet"_s], u"What is blocked?"_s);
        QCOMPARE(entry[u"has_transcript"_s], true);
    }

    void answersCanBeSaid() {
        const QStringList questions =
            u"How was the week?|Compare the hosting options|Where do we stand?|"
            "Who does what?|Where does the money go?|Are we within budget?|"
            "Cash in and out|What is blocked?|The trial funnel|"
            "What does one invoice cost?|Show me a table|List the tasks|"
            "The key figures|Link to the dashboard|What next?|Explain how this works|"
            "Who is overloaded?|The retro|Как прошла неделя?|Куда уходят деньги?|"
            "Good day to you"_s.split(u'|');
        const QRegularExpression unspeakable(u"[*`|#\\[\\]{}<>€%_]|://|OPTIONS|ВАРИАНТЫ|\\d-\\d"_s);
        Caller caller(m_voice->sandbox().url());
        caller.begin(m_voice->mint(u"KIV"_s)[u"signed_url"_s].toString());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        QStringList answers;
        for (const QString &question : questions) {
            caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, question}});
            const QString answer = saidIn(caller.next(u"agent_response"_s));
            QVERIFY2(!answer.isEmpty() && answer.size() < 500, qPrintable(question));
            QVERIFY2(!answer.contains(unspeakable), qPrintable(answer));
            answers.append(answer);
            if (qEnvironmentVariableIsSet("KIV_SHOW_ANSWERS"))
                qInfo("%s\n    %s", qPrintable(question), qPrintable(answer));
        }
        QVERIFY2(answers[0].contains(u" euros"_s), qPrintable(answers[0]));
        QVERIFY2(answers[19].contains(u" процентов"_s), qPrintable(answers[19]));
        answers.removeDuplicates();
        QVERIFY(answers.size() > 15);
    }

    /// What is to be looked at is in the chat, there as soon as it is spoken of.
    void drawingsGoToTheChat_data() {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("part"); // of the row; empty when there is to be none
        QTest::newRow("drawing") << u"Who is overloaded?"_s << u"```view"_s;
        QTest::newRow("table") << u"Show me a table"_s << u"|"_s;
        QTest::newRow("link") << u"Link to the dashboard"_s << u"](/dashboard"_s;
        QTest::newRow("words") << u"Good day to you"_s << QString();
    }
    void drawingsGoToTheChat() {
        QFETCH(QString, question);
        QFETCH(QString, part);
        Stream chat(m_voice->client(), m_voice->client().kivChat() + u"/stream"_s);
        Caller caller(m_voice->sandbox().url());
        caller.begin(m_voice->mint(u"KIV"_s)[u"signed_url"_s].toString());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, question}});
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"The retro"_s}});
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        QVERIFY(chat.waitForRows(part.isEmpty() ? 1 : 2));
        const QList<QJsonObject> rows = chat.rows();
        QVERIFY(rows.last()[u"content"_s].toString().contains(u"retro"_s, Qt::CaseInsensitive));
        QCOMPARE(rows.size(), part.isEmpty() ? 1 : 2);
        QCOMPARE(rows.first()[u"role"_s], u"assistant"_s);
        QVERIFY(rows.first()[u"content"_s].toString().contains(part));
    }

    void callerWhoSpeaksIsHeardAndInterrupts() {
        m_voice->order({u"call-deaf"_s});
        Caller caller(m_voice->sandbox().url());
        caller.begin(m_voice->mintAddress());
        const QString greeting = saidIn(caller.next(u"agent_response"_s));
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
        QCOMPARE(heardIn(caller.next(u"user_transcript"_s)), u"…"_s);
        QVERIFY(saidIn(caller.next(u"agent_response"_s)).contains(u"type"_s));
        QVERIFY(m_voice->seen()[u"muted"_s].toBool());
        QCOMPARE(qRound(m_voice->seen()[u"audio_seconds"_s].toDouble() * 10), 16);
        caller.sound(100, 200);
        QTRY_VERIFY(!m_voice->seen()[u"muted"_s].toBool());
        QCOMPARE(m_voice->detail(m_voice->call())[u"transcript"_s][0][u"text"_s],
                 correction[u"corrected_agent_response"_s]);
    }

    void aWordInterruptsAndANoiseDoesNot() {
        // Tells at the end of every sound what the test has put down.
        VoiceFixture voice({.recogniser = "#!/bin/sh\nwhile read -r line; do case \"$line\" in\n"
                                          "*'\"end\"'*) cat \"$2/hears\" ;; esac; done\n",
                            .answerSpeed = u"3"_s});
        const auto hear = [&voice](Caller &caller, const char *lines) {
            QFile hears(voice.recogniserFolder() + u"/hears"_s);
            QVERIFY(hears.open(QIODevice::WriteOnly) && hears.write(lines) > 0);
            hears.close();
            caller.sound(50, 500);
        };
        Caller caller(voice.sandbox().url());
        caller.begin(voice.mintAddress());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        hear(caller, "{\"final\":\"Wait\"}\n");
        QVERIFY(!caller.next(u"interruption"_s).isEmpty());
        QCOMPARE(heardIn(caller.next(u"user_transcript"_s)), u"Wait"_s);
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        // The answer is still to come when the noise does.
        caller.send({{u"type"_s, u"user_message"_s}, {u"text"_s, u"What is blocked?"_s}});
        QCOMPARE(heardIn(caller.next(u"user_transcript"_s)), u"What is blocked?"_s);
        hear(caller, "{\"interim\":\"Hm\"}\n{\"final\":\"\"}\n");
        QVERIFY(!saidIn(caller.next(u"agent_response"_s)).isEmpty());
        QCOMPARE(caller.count(u"user_transcript"_s), 2);
        QVERIFY(voice.stop());
    }

    void droppedCallIsTakenUpAgain_data() {
        QTest::addColumn<bool>("byServer");
        QTest::newRow("the server's end breaks") << true;
        QTest::newRow("the caller's end breaks") << false;
    }

    void droppedCallIsTakenUpAgain() {
        QFETCH(bool, byServer);
        m_voice->order({byServer ? u"call-drop=300,times=1"_s : u"call-deaf"_s});
        const QString address = m_voice->mintAddress();
        Caller caller(m_voice->sandbox().url());
        caller.begin(address);
        QVERIFY(!caller.next(u"conversation_initiation_metadata"_s).isEmpty());
        if (!byServer)
            caller.socket().abort();
        QVERIFY(caller.waitForClose());
        QTRY_COMPARE(m_voice->seen()[u"state"_s].toString(), u"dropped"_s);
        QCOMPARE(m_voice->tryMint().code(), u"call_in_progress"_s);
        Caller again(m_voice->sandbox().url());
        again.begin(address);
        QVERIFY(saidIn(again.next(u"agent_response"_s)).contains(u"back"_s));
        QCOMPARE(m_voice->seen()[u"sockets"_s].toInt(), 2);
        QCOMPARE(m_voice->calls()[0][u"status"_s], u"in_progress"_s);
    }

    void endingClosesTheSocketAndSpendsTheToken() {
        const QString address = m_voice->mintAddress();
        Caller caller(m_voice->sandbox().url());
        caller.begin(address);
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        Caller second(m_voice->sandbox().url()); // one socket at a time
        second.begin(address);
        QVERIFY(second.waitForClose());
        QCOMPARE(second.socket().closeCode(), QWebSocketProtocol::CloseCodePolicyViolated);
        m_voice->endCall();
        QVERIFY(caller.waitForClose());
        QCOMPARE(caller.socket().closeCode(), QWebSocketProtocol::CloseCodeNormal);
        Caller third(m_voice->sandbox().url());
        third.begin(address);
        QVERIFY(third.waitForClose());
        QVERIFY(!third.socket().closeReason().isEmpty());
    }

    void longestTimeIsKept() {
        m_voice->order({u"call-limit=0"_s});
        const QJsonObject session = m_voice->mint();
        QCOMPARE(session[u"max_duration_secs"_s].toInt(), 0);
        Caller caller(m_voice->sandbox().url());
        caller.begin(session[u"signed_url"_s].toString());
        QVERIFY(caller.waitForClose(8000));
        QCOMPARE(caller.socket().closeCode(), QWebSocketProtocol::CloseCodeNormal);
        QVERIFY(!caller.socket().closeReason().isEmpty());
    }

    void pastCallsOutliveTheServer() {
        Caller caller(m_voice->sandbox().url());
        caller.begin(m_voice->mintAddress());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        const QString call = m_voice->call();
        QVERIFY(m_voice->stop());
        m_voice->restart();
        QCOMPARE(m_voice->calls()[0][u"id"_s], call);
        QCOMPARE(m_voice->calls()[0][u"status"_s], u"done"_s);
        QCOMPARE(m_voice->detail(call)[u"transcript"_s].toArray().size(), 1);
        m_voice->mint(); // nothing of it is in the way
        QCOMPARE(m_voice->client().get(u"/api/v2/voice/calls/"_s + m_voice->call()).status,
                 404); // never came about
        QCOMPARE(m_voice->client()
                     .get(u"/api/v2/voice/calls?limit=1&agent_id="_s + m_voice->agentId(u"Scout"_s))
                     .json()[u"calls"_s]
                     .toArray()
                     .size(),
                 1);
    }
};

QTEST_GUILESS_MAIN(ConversationTest)
#include "ConversationTest.moc"
