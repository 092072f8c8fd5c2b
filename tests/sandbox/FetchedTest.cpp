// What the set-up fetches, at work in the server: the voice client's script and the recogniser.
// Left out where it could not be fetched.

#include "sandbox/Caller.h"
#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"

#include <QStandardPaths>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace kiv::test;

class FetchedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY(m_sandbox.ready());
        m_client = std::make_unique<Client>(m_sandbox.port());
        m_agent = m_client->signUp(u"fetched@example.com"_s).isEmpty()
                      ? QString()
                      : m_client->get(u"/api/v2/orchestrator"_s).json()[u"agent_id"_s].toString();
        QVERIFY(!m_agent.isEmpty());
    }

    void scriptDefinesTheGlobal() {
        const Response script = m_client->get(u"/vendor/elevenlabs-client.1.21.0.js"_s);
        const QString node = QStandardPaths::findExecutable(u"node"_s);
        if (script.status == 404 || node.isEmpty())
            QSKIP("The script was not fetched, or there is nothing to run it.");
        QProcess process;
        process.start(node,
                      {u"-e"_s, u"globalThis.window = globalThis;"
                                "globalThis.navigator = { userAgent: '', platform: '' };"
                                "require('vm').runInThisContext("
                                "require('fs').readFileSync(0, 'utf8'));"
                                "console.log(typeof window.__ElevenConversation.startSession)"_s});
        process.write(script.body);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardOutput().trimmed(), "function");
    }

    void spokenQuestionIsAnswered() {
        const QJsonObject session =
            m_client->post(u"/api/v2/voice/session"_s, {{u"agent_id"_s, m_agent}}).json();
        if (session.isEmpty() || session.contains(u"error"_s))
            QSKIP("Calls are not available here.");
        QTemporaryDir folder;
        const QString wav = folder.filePath(u"question.wav"_s);
        QCOMPARE(QProcess::execute(u"flite"_s, {u"-voice"_s, u"slt"_s, u"-t"_s,
                                                u"What is blocked right now?"_s, u"-o"_s, wav}),
                 0);
        Caller caller(m_sandbox.url());
        caller.begin(session[u"signed_url"_s].toString());
        QVERIFY(!caller.next(u"agent_response"_s).isEmpty());
        if (seen()[u"ear"_s] != u"words"_s)
            QSKIP("The recogniser was not fetched.");
        QVERIFY(caller.play(wav));
        const QJsonObject said = caller.next(u"user_transcript"_s, 20'000);
        QCOMPARE(said[u"user_transcription_event"_s][u"user_transcript"_s],
                 u"What is blocked right now?"_s);
        const QJsonObject answer = caller.next(u"agent_response"_s);
        QVERIFY(answer[u"agent_response_event"_s][u"agent_response"_s].toString().contains(
            u"wait for something"_s));
    }

private:
    QJsonObject seen() { return m_client->get(u"/_control/voice"_s).json(); }

    QTemporaryDir m_folder;
    SandboxProcess m_sandbox{m_folder.path()};
    std::unique_ptr<Client> m_client;
    QString m_agent;
};

QTEST_GUILESS_MAIN(FetchedTest)
#include "FetchedTest.moc"
