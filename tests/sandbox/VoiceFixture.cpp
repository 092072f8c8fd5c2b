#include "VoiceFixture.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kiv::test {

namespace {

void write(const QString &path, const QByteArray &text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
        qFatal("No script can be written.");
    file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
}

} // namespace

VoiceFixture::VoiceFixture(VoiceSetting setting) : m_setting(std::move(setting)) {
    if (m_setting.dataDir.isEmpty())
        m_setting.dataDir = m_folder.path();
    // What is in the script does not matter here, only that it is there.
    QDir(m_share.path()).mkpath(u"vendor"_s);
    write(scriptPath(), "window.here = 1;");
    if (!m_setting.recogniser.isEmpty()) {
        // The server takes the recogniser that is beside it.
        m_program = m_share.filePath(u"kiv-sandbox"_s);
        QFile::copy(QStringLiteral(KIV_SANDBOX), m_program);
        write(m_share.filePath(u"kiv-speech"_s), m_setting.recogniser);
        QDir().mkpath(recogniserFolder());
    }
    restart();
    m_client->signUp(u"caller@example.com"_s);
    for (const QJsonValue agent :
         m_client->get(u"/api/v2/custom-agents"_s).json()[u"agents"_s].toArray())
        m_agents.insert(agent[u"name"_s].toString(), agent[u"id"_s].toString());
    m_agents.insert(u"KIV"_s,
                    m_client->get(u"/api/v2/orchestrator"_s).json()[u"agent_id"_s].toString());
}

void VoiceFixture::restart() {
    m_sandbox = nullptr; // one server works in a data folder
    m_sandbox = std::make_unique<SandboxProcess>(
        m_setting.dataDir,
        QStringList{u"--share-dir"_s, m_share.path(), u"--answer-speed"_s, m_setting.answerSpeed},
        m_program);
    auto client = std::make_unique<Client>(m_sandbox->port());
    if (m_client)
        client->headers.emplace("Cookie", m_client->headers.find("Cookie")->second);
    m_client = std::move(client);
}

QString VoiceFixture::scriptPath() const {
    return m_share.filePath(u"vendor/elevenlabs-client.1.21.0.js"_s);
}

void VoiceFixture::order(const QStringList &faults) {
    const Response response =
        m_client->post(u"/_control/faults"_s, {{u"faults"_s, QJsonArray::fromStringList(faults)}});
    QCOMPARE(response.status, 200);
}

Response VoiceFixture::tryMint(const QString &agent) {
    return m_client->post(u"/api/v2/voice/session"_s, {{u"agent_id"_s, agentId(agent)}});
}

QJsonObject VoiceFixture::mint(const QString &agent) {
    const Response response = tryMint(agent);
    if (response.status != 200) {
        qWarning("No call: %s", response.body.constData());
        return {};
    }
    m_call = response.json()[u"call_id"_s].toString();
    return response.json();
}

Response VoiceFixture::endCall() {
    return m_client->post(u"/api/v2/voice/end"_s, {{u"call_id"_s, m_call}});
}

QJsonArray VoiceFixture::calls(const QString &agent) {
    const Response response =
        m_client->get(u"/api/v2/voice/calls?limit=50&agent_id="_s + agentId(agent));
    return response.json()[u"calls"_s].toArray();
}

QJsonObject VoiceFixture::detail(const QString &call) {
    return m_client->get(u"/api/v2/voice/calls/"_s + call).json()[u"call"_s].toObject();
}

QJsonObject VoiceFixture::seen() {
    return m_client->get(u"/_control/voice"_s).json();
}

QString saidIn(const QJsonObject &agentResponse) {
    return agentResponse[u"agent_response_event"_s][u"agent_response"_s].toString();
}

QString heardIn(const QJsonObject &userTranscript) {
    return userTranscript[u"user_transcription_event"_s][u"user_transcript"_s].toString();
}

} // namespace kiv::test
