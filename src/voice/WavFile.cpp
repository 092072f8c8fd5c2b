#include "voice/WavFile.h"

#include "voice/AudioInput.h"
#include "voice/Pcm.h"

#include <QFile>
#include <QtEndian>

#include <optional>

namespace kiv::voice {

using namespace Qt::StringLiterals;

namespace {

/// An hour of 16 bit stereo at 48 kHz; what is larger is not spoken for a test.
constexpr qint64 largestFile = 700 * 1024 * 1024;
constexpr qsizetype chunkHead = 8;
constexpr qsizetype formatSize = 16;

enum Encoding : quint16 { Integer = 1, Float = 3, Extensible = 0xfffe };

template <typename Value>
Value littleEndian(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<Value>(bytes.data() + at);
}

/// The chunk of this name; nothing when there is none.
std::optional<QByteArrayView> chunk(QByteArrayView file, QByteArrayView name) {
    qsizetype at = 12;
    while (at + chunkHead <= file.size()) {
        const qsizetype size = littleEndian<quint32>(file, at + 4);
        const QByteArrayView content = file.sliced(at + chunkHead);
        // A recording that was cut short says more than there is.
        if (file.sliced(at, 4) == name)
            return content.first(std::min(size, content.size()));
        if (size > content.size())
            break;
        at += chunkHead + size + size % 2;
    }
    return std::nullopt;
}

std::optional<PcmFormat> formatOf(QByteArrayView format) {
    auto encoding = littleEndian<quint16>(format, 0);
    if (encoding == Extensible && format.size() >= 26)
        encoding = littleEndian<quint16>(format, 24);
    switch (littleEndian<quint16>(format, 14)) {
    case 8:
        return encoding == Integer ? std::optional(PcmFormat::UInt8) : std::nullopt;
    case 16:
        return encoding == Integer ? std::optional(PcmFormat::Int16) : std::nullopt;
    case 24:
        return encoding == Integer ? std::optional(PcmFormat::Int24) : std::nullopt;
    case 32:
        if (encoding == Float)
            return PcmFormat::Float;
        return encoding == Integer ? std::optional(PcmFormat::Int32) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/// What is wrong with the file; throws it.
[[noreturn]] void refuse(const QString &path, const QString &why) {
    throw AudioError((path + u": "_s + why).toStdString());
}

} // namespace

Sound readWav(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, file.errorString());
    if (file.size() > largestFile)
        refuse(path, u"it is too large"_s);
    const QByteArray content = file.readAll();
    if (content.size() < 12 || !content.startsWith("RIFF") || content.mid(8, 4) != "WAVE")
        refuse(path, u"it is not a WAV file"_s);
    const auto format = chunk(content, "fmt ");
    const auto data = chunk(content, "data");
    if (!format || format->size() < formatSize || !data)
        refuse(path, u"it is a WAV file without sound"_s);

    const int channels = littleEndian<quint16>(*format, 2);
    const auto rate = littleEndian<quint32>(*format, 4);
    const auto encoding = formatOf(*format);
    if (!encoding)
        refuse(path, u"its sound is compressed, which cannot be read"_s);
    if (channels < 1 || rate < 4'000 || rate > 384'000)
        refuse(path, u"it has no channel or an impossible rate"_s);
    return {static_cast<int>(rate), monoSamples(*data, *encoding, channels)};
}

} // namespace kiv::voice
