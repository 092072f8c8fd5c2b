#include "SoundFiles.h"

#include <QDataStream>
#include <QIODevice>

#include <cmath>
#include <numbers>

namespace kiv::test {

QByteArray wavFile(const WavHead &head, const QByteArray &data) {
    const auto frame = static_cast<quint16>(head.channels * head.bits / 8);
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << static_cast<quint32>(36 + data.size());
    out.writeRawData("WAVEfmt ", 8);
    out << quint32{16} << head.encoding << head.channels << head.rate << head.rate * frame << frame
        << head.bits;
    out.writeRawData("data", 4);
    out << static_cast<quint32>(data.size());
    out.writeRawData(data.constData(), static_cast<int>(data.size()));
    return file;
}

QList<float> tone(double hertz, int rate, double seconds, double amplitude) {
    QList<float> samples(static_cast<qsizetype>(rate * seconds));
    for (qsizetype index = 0; index < samples.size(); ++index)
        samples[index] = static_cast<float>(
            amplitude * std::sin(2 * std::numbers::pi * hertz * static_cast<double>(index) / rate));
    return samples;
}

} // namespace kiv::test
