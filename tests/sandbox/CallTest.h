#pragma once

#include "sandbox/VoiceFixture.h"

#include <QObject>

namespace kiv::test {

/// Tests of a server that is called, and that ends without a complaint. After each of them nobody
/// is on the line.
class CallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

protected:
    std::unique_ptr<VoiceFixture> m_voice;
};

} // namespace kiv::test
