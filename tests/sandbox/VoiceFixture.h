#pragma once

#include "sandbox/Caller.h"
#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"

namespace kiv::test {

struct VoiceSetting {
    QByteArray recogniser = {}; ///< a shell script; empty for none
    QString answerSpeed = QStringLiteral("0");
    QString dataDir = {}; ///< empty for one of its own
};

/// A server that can be called, and somebody signed in there who calls. It has a voice client's
/// script of its own.
class VoiceFixture {
public:
    explicit VoiceFixture(VoiceSetting setting = {});

    /// Starts the server anew in the same data folder; the session stays.
    void restart();
    bool stop() { return m_sandbox->closeInput(); }

    void order(const QStringList &faults);
    Response tryMint(const QString &agent = QStringLiteral("Scout"));
    /// The session; empty when there is none.
    QJsonObject mint(const QString &agent = QStringLiteral("Scout"));
    QString mintAddress() { return mint()[QStringLiteral("signed_url")].toString(); }
    /// Ends what was minted last.
    Response endCall();
    const QString &call() const { return m_call; }

    QJsonArray calls(const QString &agent = QStringLiteral("Scout"));
    QJsonObject detail(const QString &call);
    /// What the server saw of the last call.
    QJsonObject seen();

    Client &client() { return *m_client; }
    SandboxProcess &sandbox() { return *m_sandbox; }
    QString agentId(const QString &name) const { return m_agents.value(name); }
    QString scriptPath() const;
    QString recogniserFolder() const { return m_share.filePath(QStringLiteral("speech")); }

private:
    QTemporaryDir m_share;
    QString m_program = QStringLiteral(KIV_SANDBOX);
    QTemporaryDir m_folder;
    VoiceSetting m_setting;
    std::unique_ptr<SandboxProcess> m_sandbox;
    std::unique_ptr<Client> m_client;
    QHash<QString, QString> m_agents;
    QString m_call;
};

QString saidIn(const QJsonObject &agentResponse);
QString heardIn(const QJsonObject &userTranscript);

} // namespace kiv::test
