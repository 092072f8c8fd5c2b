#pragma once

#include "sandbox/Client.h"
#include "sandbox/SandboxProcess.h"

#include <QObject>

#include <memory>

namespace kiv::test {

/// Tests of a server of their own, which ends without a complaint, and of one person who is signed
/// in there.
class ServerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

protected:
    /// `arguments` are the server's.
    explicit ServerTest(const QStringList &arguments = {}) : m_arguments(arguments) {}

    /// The person's chat with the orchestrator.
    const QString &kivChat();

    static inline const QString m_email = QStringLiteral("person@example.com");
    QTemporaryDir m_folder;
    std::unique_ptr<SandboxProcess> m_sandbox;
    std::unique_ptr<Client> m_client;

private:
    QStringList m_arguments;
    QString m_kivChat;
};

} // namespace kiv::test
