// From a device's or a file's samples to those that speech is recognised in.

#include "SoundFiles.h"

#include "support/ManualClock.h"
#include "voice/FileInput.h"
#include "voice/Pcm.h"
#include "voice/Resampler.h"
#include "voice/SoundLevel.h"
#include "voice/WavFile.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <complex>
#include <numbers>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::voice;
using test::tone;
using test::wavFile;

namespace {

/// How loud a tone of this height is in the middle of the samples; 1 for a full sine.
double amplitudeAt(double hertz, std::span<const float> samples) {
    const auto middle = samples.subspan(samples.size() / 4, samples.size() / 2);
    std::complex<double> sum = 0;
    double window = 0;
    for (size_t index = 0; index < middle.size(); ++index) {
        const double place = 2 * std::numbers::pi * static_cast<double>(index);
        const double weight = 0.5 - 0.5 * std::cos(place / static_cast<double>(middle.size()));
        sum += weight * static_cast<double>(middle[index]) *
               std::polar(1.0, -place * hertz / sampleRate);
        window += weight;
    }
    return 2 * std::abs(sum) / window;
}

double loudest(std::span<const float> samples) {
    double most = 0;
    for (const float sample : samples.subspan(samples.size() / 4, samples.size() / 2))
        most = std::max(most, std::abs(static_cast<double>(sample)));
    return most;
}

QByteArray ints(std::initializer_list<qint16> values) {
    return {reinterpret_cast<const char *>(std::data(values)),
            static_cast<qsizetype>(values.size() * 2)};
}

} // namespace

class SoundTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void resampling_data() {
        QTest::addColumn<int>("rate");
        QTest::addColumn<double>("hertz");
        QTest::addColumn<bool>("passes");
        for (const int rate :
             {8'000, 11'025, 16'000, 22'050, 32'000, 44'100, 48'000, 96'000, 192'000, 44'056}) {
            const double highest = 0.39 * std::min(rate, 16'000);
            for (const double hertz : {100.0, 1'000.0, highest})
                QTest::addRow("%d Hz: %.0f Hz passes", rate, hertz) << rate << hertz << true;
            for (const double hertz : {8'300.0, 9'000.0, 15'000.0, 21'000.0}) {
                if (hertz < rate / 2.0)
                    QTest::addRow("%d Hz: no alias of %.0f Hz", rate, hertz)
                        << rate << hertz << false;
            }
        }
    }
    void resampling() {
        QFETCH(int, rate);
        QFETCH(double, hertz);
        QFETCH(bool, passes);
        const QList<float> made = Resampler(rate).add(tone(hertz, rate, 0.5));
        QVERIFY(std::abs(made.size() - 8'000) < 60);
        if (passes) {
            QVERIFY(std::abs(amplitudeAt(hertz, made) - 0.5) < 0.01); // 0.2 dB
            QVERIFY(loudest(made) < 0.51);                            // and nothing beside it
        } else {
            QVERIFY(loudest(made) < 0.5 / 1000); // 60 dB down
        }
    }

    /// Sound comes in pieces of any size, and the seams cannot be heard.
    void resamplingInPieces() {
        const QList<float> sound = tone(440, 44'100, 0.2);
        const QList<float> whole = Resampler(44'100).add(sound);
        Resampler resampler(44'100);
        QList<float> pieces;
        for (qsizetype at = 0, size = 0; at < sound.size(); at += size) {
            size = std::min<qsizetype>(1 + at % 397, sound.size() - at);
            pieces += resampler.add(std::span(sound).subspan(size_t(at), size_t(size)));
        }
        QCOMPARE(pieces, whole);
    }

    void samples_data() {
        QTest::addColumn<PcmFormat>("format");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("8 bit") << PcmFormat::UInt8 << "\xc0\x40"_ba;
        QTest::newRow("16 bit") << PcmFormat::Int16 << ints({16384, -16384});
        QTest::newRow("24 bit") << PcmFormat::Int24 << QByteArray("\0\0\x40\0\0\xc0", 6);
        QTest::newRow("32 bit") << PcmFormat::Int32 << QByteArray("\0\0\0\x40\0\0\0\xc0", 8);
        const float half[] = {0.5f, -0.5f};
        QTest::newRow("float") << PcmFormat::Float
                               << QByteArray(reinterpret_cast<const char *>(half), 8);
    }
    void samples() {
        QFETCH(PcmFormat, format);
        QFETCH(QByteArray, bytes);
        QCOMPARE(monoSamples(bytes, format, 1), (QList<float>{0.5f, -0.5f}));
        QCOMPARE(monoSamples(bytes, format, 2), QList<float>{0});
        QCOMPARE(monoSamples(bytes.chopped(1), format, 1), QList<float>{0.5f});
    }

    void tooLoudIsCutOff() {
        const float loud[] = {2, 1, 0, -1, -3};
        QCOMPARE(toInt16(loud), ints({32767, 32767, 0, -32768, -32768}));
    }

    void level() {
        SoundLevel level;
        const auto heard = [&](double amplitude) {
            level.reset();
            level.add(toInt16(tone(300, sampleRate, 0.05, amplitude)));
            return level.value();
        };
        QCOMPARE(heard(0), 0.0);
        QCOMPARE(heard(0.001), 0.0);
        QVERIFY(heard(0.02) > 0.1);
        QVERIFY(heard(0.05) > heard(0.02));
        QCOMPARE(heard(1), 1.0);

        // It falls slowly, at the same pace for short and long pieces of silence.
        level.add(QByteArray(1600, '\0'));
        const double after = level.value();
        QVERIFY(after > 0.5 && after < 1);
        heard(1);
        for (int piece = 0; piece < 4; ++piece)
            level.add(QByteArray(400, '\0'));
        QVERIFY(std::abs(level.value() - after) < 1e-9);
    }

    void fileInRealTime() {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"tone.wav"_s);
        const QByteArray sound = toInt16(tone(1'000, sampleRate, 0.12));
        write(path, wavFile({}, sound));
        test::ManualClock clock;
        FileInput input(clock, path);
        QByteArray heard;
        const auto hear = [&](const QByteArray &samples) { heard += samples; };
        input.start(hear, {});
        QVERIFY(input.running());
        QCOMPARE(heard.size(), 0);
        clock.advance(100ms);
        QCOMPARE(heard, sound.first(3'200));
        QVERIFY(input.level() > 0.5);

        // After its end the room is quiet, and the recogniser hears that.
        clock.advance(400ms);
        QCOMPARE(heard, sound + QByteArray(16'000 - sound.size(), '\0'));

        input.stop();
        QVERIFY(!input.running() && input.level() == 0);
        clock.advance(1s);
        QCOMPARE(heard.size(), 16'000);

        heard.clear(); // and once more, from its beginning
        input.start(hear, {});
        clock.advance(50ms);
        QCOMPARE(heard, sound.first(1'600));
    }

    void fileOfAnotherFormat() {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"stereo.wav"_s);
        QByteArray stereo;
        for (const float sample : tone(1'000, 48'000, 0.5)) {
            const auto value = static_cast<qint16>(sample * 32767);
            for (int channel = 0; channel < 2; ++channel)
                stereo.append(reinterpret_cast<const char *>(&value), 2);
        }
        write(path, wavFile({.channels = 2, .rate = 48'000}, stereo));
        const Sound sound = readWav(path);
        QCOMPARE(sound.rate, 48'000);
        QCOMPARE(sound.samples.size(), 24'000);
        QVERIFY(std::abs(amplitudeAt(1'000, Resampler(sound.rate).add(sound.samples)) - 0.5) <
                0.01);
    }

    void badFiles_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("why");
        const QByteArray good = wavFile({}, ints({1, 2, 3}));
        const QString notWav = u"it is not a WAV file"_s;
        const QString soundless = u"it is a WAV file without sound"_s;
        const QString compressed = u"its sound is compressed, which cannot be read"_s;
        const QString impossible = u"it has no channel or an impossible rate"_s;
        QTest::newRow("missing") << QByteArray() << u"No such file or directory"_s;
        QTest::newRow("text") << "a long line of text that is no sound"_ba << notWav;
        QTest::newRow("head only") << good.first(12) << soundless;
        QTest::newRow("cut in the format") << good.first(30) << soundless;
        QTest::newRow("no data") << good.first(36) << soundless;
        QByteArray huge = good;
        huge.replace(16, 4, "\xff\xff\xff\xff"); // a chunk that is larger than any file
        QTest::newRow("wrong size") << huge << soundless;
        QTest::newRow("compressed") << wavFile({.encoding = 85}, "abcd") << compressed;
        QTest::newRow("13 bit") << wavFile({.bits = 13}, "abcd") << compressed;
        QTest::newRow("no channel") << wavFile({.channels = 0}, "abcd") << impossible;
        QTest::newRow("no rate") << wavFile({.rate = 0}, "abcd") << impossible;
    }
    void badFiles() {
        QFETCH(QByteArray, content);
        QFETCH(QString, why);
        QTemporaryDir folder;
        const QString path = folder.filePath(u"bad.wav"_s);
        if (!content.isEmpty())
            write(path, content);
        test::ManualClock clock;
        FileInput input(clock, path);
        try {
            input.start({}, {});
            QFAIL("it was taken for sound");
        } catch (const AudioError &error) {
            QCOMPARE(QString::fromUtf8(error.what()), path + u": "_s + why);
        }
        QVERIFY(!input.running());
    }

    /// A recording that was broken off plays as far as it goes.
    void brokenOff() {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"short.wav"_s);
        write(path, wavFile({}, ints({1, 2, 3})).chopped(3));
        QCOMPARE(readWav(path).samples.size(), 1);
    }

private:
    static void write(const QString &path, const QByteArray &content) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

QTEST_GUILESS_MAIN(SoundTest)
#include "SoundTest.moc"
