#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace kiv::test {

/// A real kiv-sandbox as a child, in a data folder that may outlive it. Answers have no pauses
/// unless `arguments` say otherwise.
class SandboxProcess {
public:
    explicit SandboxProcess(const QString &dataDir, const QStringList &arguments = {},
                            const QString &program = QStringLiteral(KIV_SANDBOX));
    ~SandboxProcess();

    /// Whether the first line came and is what it has to be.
    bool ready() const { return !m_first.isEmpty(); }
    int port() const;
    QString url() const { return m_first.value(QStringLiteral("url")).toString(); }
    QJsonObject sample() const { return m_first.value(QStringLiteral("sample")).toObject(); }
    QString setAside() const { return m_first.value(QStringLiteral("setAside")).toString(); }

    QProcess &process() { return m_process; }
    /// Ends it by closing its standard input; false when it does not end in time or fails.
    bool closeInput();
    /// What it has complained about so far.
    QByteArray complaints() { return m_process.readAllStandardError(); }

private:
    QProcess m_process;
    QJsonObject m_first;
};

} // namespace kiv::test
