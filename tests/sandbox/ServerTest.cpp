#include "sandbox/ServerTest.h"

#include <QTest>

namespace kiv::test {

void ServerTest::initTestCase() {
    m_sandbox = std::make_unique<SandboxProcess>(m_folder.path(), m_arguments);
    QVERIFY(m_sandbox->ready());
    m_client = std::make_unique<Client>(m_sandbox->port());
    QVERIFY(!m_client->signUp(m_email).isEmpty());
}

void ServerTest::cleanupTestCase() {
    QVERIFY(m_sandbox->closeInput());
    QCOMPARE(m_sandbox->complaints(), QByteArray());
}

const QString &ServerTest::kivChat() {
    if (m_kivChat.isEmpty())
        m_kivChat = m_client->kivChat();
    return m_kivChat;
}

} // namespace kiv::test
