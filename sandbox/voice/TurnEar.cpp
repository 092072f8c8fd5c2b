#include "voice/TurnEar.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace kiv::sandbox {

namespace {

constexpr int frameMs = 20;
constexpr qsizetype frameSamples = callerRate * frameMs / 1000;
constexpr qsizetype frameBytes = frameSamples * bytesPerSample;
/// Speech is that much louder than the room, and never quieter than this.
constexpr double aboveRoom = 3;
constexpr double leastLoudness = 500;
constexpr double roomFollows = 0.05;
constexpr int shortestSpeechMs = 240;
constexpr int turnSilenceMs = 700;

double loudness(const char *frame) {
    double sum = 0;
    for (qsizetype i = 0; i < frameSamples; ++i) {
        const double sample = qFromLittleEndian<qint16>(frame + i * bytesPerSample);
        sum += sample * sample;
    }
    return std::sqrt(sum / static_cast<double>(frameSamples));
}

} // namespace

void TurnEar::hear(const QByteArray &samples) {
    m_pending += samples;
    qsizetype done = 0;
    for (; done + frameBytes <= m_pending.size(); done += frameBytes)
        hearFrame(m_pending.constData() + done);
    m_pending.remove(0, done);
}

void TurnEar::hearFrame(const char *frame) {
    const double here = loudness(frame);
    if (here > std::max(leastLoudness, m_floor * aboveRoom)) {
        m_loud += frameMs;
        m_quiet = 0;
        if (!m_speaking && m_loud >= shortestSpeechMs) {
            m_speaking = true;
            later(m_handlers.began);
        }
        return;
    }
    m_floor += (here - m_floor) * roomFollows;
    m_quiet += frameMs;
    if (m_quiet >= turnSilenceMs) {
        if (m_speaking)
            later([said = m_handlers.said] { said(wordless); });
        m_speaking = false;
        m_loud = 0;
    }
}

void TurnEar::later(std::function<void()> call) {
    QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
}

} // namespace kiv::sandbox
