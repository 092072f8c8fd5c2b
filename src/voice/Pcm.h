#pragma once

#include <QByteArray>
#include <QList>

#include <span>

namespace kiv::voice {

/// How a device or a file writes one sample, in the host's byte order.
enum class PcmFormat { UInt8, Int16, Int24, Int32, Float };

int bytesPerSample(PcmFormat format);

/// The samples of all channels mixed into one, from -1 to 1; bytes of an unfinished frame at the
/// end are left out.
QList<float> monoSamples(QByteArrayView bytes, PcmFormat format, int channels);

/// Signed 16 bit samples, too loud ones cut off.
QByteArray toInt16(std::span<const float> samples);

} // namespace kiv::voice
