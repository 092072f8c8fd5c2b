#pragma once

#include <QByteArray>
#include <QList>

namespace kiv::test {

/// What a WAV file says of its sound.
struct WavHead {
    quint16 encoding = 1; ///< 1 for integers, 3 for floating point
    quint16 channels = 1;
    quint32 rate = 16'000;
    quint16 bits = 16;
};

/// The bytes of a WAV file.
QByteArray wavFile(const WavHead &head, const QByteArray &data);

/// A tone of this height and loudness.
QList<float> tone(double hertz, int rate, double seconds, double amplitude = 0.5);

} // namespace kiv::test
