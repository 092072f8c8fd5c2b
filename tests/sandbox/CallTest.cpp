#include "sandbox/CallTest.h"

#include <QTest>

namespace kiv::test {

void CallTest::initTestCase() {
    m_voice = std::make_unique<VoiceFixture>();
    QVERIFY(!m_voice->agentId(QStringLiteral("Scout")).isEmpty());
}

void CallTest::cleanup() {
    m_voice->order({});
    m_voice->endCall();
}

void CallTest::cleanupTestCase() {
    QVERIFY(m_voice->stop());
    QCOMPARE(m_voice->sandbox().complaints(), QByteArray());
}

} // namespace kiv::test
