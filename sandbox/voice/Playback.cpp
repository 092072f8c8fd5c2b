#include "voice/Playback.h"

#include "voice/Ear.h"
#include "voice/Speaker.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype bytesPerSecond = speakerRate * bytesPerSample;
constexpr qsizetype pieceBytes = bytesPerSecond / 5 / bytesPerSample * bytesPerSample;
constexpr qint64 aheadMs = 1000;

qsizetype bytesIn(qint64 ms) {
    return static_cast<qsizetype>(ms) * bytesPerSecond / 1000;
}

} // namespace

Playback::Playback(Piece piece) : m_piece(std::move(piece)) {
    m_timer.setInterval(100ms);
    connect(&m_timer, &QTimer::timeout, this, &Playback::sendDue);
}

void Playback::start(const QByteArray &samples) {
    m_samples = samples;
    m_sent = 0;
    m_since.start();
    m_timer.start();
    sendDue();
}

void Playback::stop() {
    m_timer.stop();
    m_samples.clear();
}

bool Playback::isPlaying() const {
    return !m_samples.isEmpty() && bytesIn(m_since.elapsed()) < m_samples.size();
}

double Playback::heard() const {
    return m_samples.isEmpty() ? 1
                               : std::min(1.0, static_cast<double>(bytesIn(m_since.elapsed())) /
                                                   static_cast<double>(m_samples.size()));
}

void Playback::sendDue() {
    const qsizetype due = bytesIn(m_since.elapsed() + aheadMs);
    while (m_sent < m_samples.size() && m_sent < due) {
        const qsizetype size = std::min(pieceBytes, m_samples.size() - m_sent);
        m_piece(m_samples.sliced(m_sent, size));
        m_sent += size;
    }
    if (m_sent >= m_samples.size())
        m_timer.stop();
}

} // namespace kiv::sandbox
