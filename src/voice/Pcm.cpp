#include "voice/Pcm.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kiv::voice {

namespace {

template <typename Value>
Value read(const char *bytes) {
    Value value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

float sampleAt(const char *bytes, PcmFormat format) {
    switch (format) {
    case PcmFormat::UInt8:
        return static_cast<float>(read<quint8>(bytes) - 128) / 128;
    case PcmFormat::Int16:
        return static_cast<float>(read<qint16>(bytes)) / 32768;
    case PcmFormat::Int24: {
        // Into the upper three bytes, where the sign is.
        quint32 value = 0;
        constexpr int shift = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? 1 : 0;
        std::memcpy(reinterpret_cast<char *>(&value) + shift, bytes, 3);
        return static_cast<float>(static_cast<qint32>(value)) / 2147483648.0f;
    }
    case PcmFormat::Int32:
        return static_cast<float>(read<qint32>(bytes)) / 2147483648.0f;
    case PcmFormat::Float:
        return read<float>(bytes);
    }
    Q_UNREACHABLE();
}

} // namespace

int bytesPerSample(PcmFormat format) {
    switch (format) {
    case PcmFormat::UInt8:
        return 1;
    case PcmFormat::Int16:
        return 2;
    case PcmFormat::Int24:
        return 3;
    case PcmFormat::Int32:
    case PcmFormat::Float:
        return 4;
    }
    Q_UNREACHABLE();
}

QList<float> monoSamples(QByteArrayView bytes, PcmFormat format, int channels) {
    const int width = bytesPerSample(format);
    const qsizetype frames = bytes.size() / (qsizetype{width} * channels);
    QList<float> samples(frames);
    const char *next = bytes.data();
    for (float &sample : samples) {
        float sum = 0;
        for (int channel = 0; channel < channels; ++channel, next += width)
            sum += sampleAt(next, format);
        sample = std::isfinite(sum) ? sum / static_cast<float>(channels) : 0;
    }
    return samples;
}

QByteArray toInt16(std::span<const float> samples) {
    QByteArray bytes(static_cast<qsizetype>(samples.size()) * 2, Qt::Uninitialized);
    char *next = bytes.data();
    for (const float sample : samples) {
        const auto value =
            static_cast<qint16>(std::lround(std::clamp(sample * 32768, -32768.0f, 32767.0f)));
        std::memcpy(next, &value, sizeof value);
        next += sizeof value;
    }
    return bytes;
}

} // namespace kiv::voice
