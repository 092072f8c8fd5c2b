#pragma once

#include <QByteArray>

namespace kiv::voice {

/// How loud speech is, from 0 for silence to 1 for a loud voice close by: the root mean square of
/// the samples on a scale of decibels. It rises at once and falls slowly, so that a ring which
/// follows it does not flicker.
class SoundLevel {
public:
    /// Samples are signed 16 bit, 16 kHz, mono.
    void add(const QByteArray &samples);
    void reset() { m_value = 0; }
    double value() const { return m_value; }

private:
    double m_value = 0;
};

} // namespace kiv::voice
