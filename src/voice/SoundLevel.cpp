#include "voice/SoundLevel.h"

#include "voice/AudioInput.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kiv::voice {

namespace {

/// Below it a room is quiet.
constexpr double quietDecibels = -50;
/// A voice that comes close to the end of the scale.
constexpr double loudDecibels = -14;
/// After this long without sound the level is down to a third.
constexpr double fallSeconds = 0.15;

/// Of full scale, in decibels.
double loudness(const QByteArray &samples, qsizetype count) {
    double sum = 0;
    for (qsizetype index = 0; index < count; ++index) {
        qint16 sample = 0;
        std::memcpy(&sample, samples.constData() + index * 2, sizeof sample);
        sum += static_cast<double>(sample) * sample;
    }
    const double rms = std::sqrt(sum / static_cast<double>(count)) / 32768;
    return 20 * std::log10(std::max(rms, 1e-6));
}

} // namespace

void SoundLevel::add(const QByteArray &samples) {
    const qsizetype count = samples.size() / 2;
    if (count == 0)
        return;
    const double heard = std::clamp(
        (loudness(samples, count) - quietDecibels) / (loudDecibels - quietDecibels), 0.0, 1.0);
    const double fallen =
        m_value * std::exp(-static_cast<double>(count) / (sampleRate * fallSeconds));
    m_value = std::max(heard, fallen);
}

} // namespace kiv::voice
