#include "speech/Spoken.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QtEndian>

#include <numeric>

namespace kiv::test {

using namespace Qt::StringLiterals;

namespace {

qint16 sampleAt(const QByteArray &samples, qsizetype index) {
    return qFromLittleEndian<qint16>(samples.constData() + 2 * index);
}

} // namespace

QByteArray spoken(const QString &sentence) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"spoken.wav"_s));
    const QStringList arguments{u"-voice"_s, u"slt"_s, u"-t"_s, sentence, u"-o"_s, file.fileName()};
    if (QProcess::execute(u"flite"_s, arguments) != 0 || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray wave = file.readAll();
    constexpr qsizetype chunkHead = 8;
    const qsizetype data = wave.indexOf("data");
    return data < 0 ? QByteArray() : wave.sliced(data + chunkHead);
}

QByteArray silence(int milliseconds) {
    return QByteArray(qsizetype(milliseconds) * bytesPerMs, '\0');
}

std::pair<int, int> voiceIn(const QByteArray &samples) {
    constexpr int audible = 600;
    const qsizetype count = samples.size() / 2;
    qsizetype first = 0;
    while (first < count && std::abs(sampleAt(samples, first)) < audible)
        ++first;
    qsizetype last = count;
    while (last > first && std::abs(sampleAt(samples, last - 1)) < audible)
        --last;
    return {int(2 * first / bytesPerMs), int(2 * last / bytesPerMs)};
}

void play(const QByteArray &samples, const std::function<void(const QByteArray &)> &piece) {
    constexpr int pieceMs = 100;
    QElapsedTimer since;
    since.start();
    for (qsizetype at = 0; at < samples.size(); at += pieceMs * bytesPerMs) {
        const QByteArray part = samples.mid(at, pieceMs * bytesPerMs);
        const qint64 over = (at + part.size()) / bytesPerMs;
        QEventLoop wait;
        QTimer::singleShot(int(std::max<qint64>(0, over - since.elapsed())), Qt::PreciseTimer,
                           &wait, &QEventLoop::quit);
        wait.exec();
        piece(part);
    }
}

QStringList plainWords(const QString &text) {
    static const QRegularExpression between(u"[^a-z']+"_s);
    return text.toLower().split(between, Qt::SkipEmptyParts);
}

int wordErrors(const QString &said, const QString &heard) {
    const QStringList a = plainWords(said);
    const QStringList b = plainWords(heard);
    QList<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        int diagonal = std::exchange(row[0], int(i) + 1);
        for (qsizetype j = 0; j < b.size(); ++j) {
            const int replaced = diagonal + (a.at(i) == b.at(j) ? 0 : 1);
            diagonal = row.at(j + 1);
            row[j + 1] = std::min({replaced, row.at(j) + 1, diagonal + 1});
        }
    }
    return row.last();
}

} // namespace kiv::test
