// The recogniser's program with its models, as dictation uses it.

#include "base/SystemClock.h"
#include "speech/Spoken.h"
#include "voice/LocalSpeech.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::voice;

class ProgramTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        if (!LocalSpeech(m_clock).defaultRecogniser()->available())
            QSKIP("The speech files have not been fetched.");
    }

    /// Two sentences with a pause are two requests; the second is ended as soon as it is spoken.
    void sentences() {
        const QString first = u"Please show me the budget of the marketing team."_s;
        const QString second = u"Compare it with the plan for the next quarter."_s;
        const QByteArray sound = test::spoken(first) + test::silence(1200) + test::spoken(second);
        QVERIFY(sound.size() > 4000 * test::bytesPerMs);

        LocalSpeech service(m_clock);
        const auto recogniser = service.recogniser(QLocale(u"en_US"_s));
        QStringList finals;
        QStringList interims;
        QString failure;
        std::unique_ptr<SpeechTask> task;
        std::function<void()> start = [&] {
            task = recogniser->startTask(true, [&](const auto &answer) {
                if (const auto *error = std::get_if<SpeechError>(&answer)) {
                    failure = error->text;
                } else if (const auto &result = std::get<SpeechResult>(answer); result.final) {
                    finals.append(result.text);
                    start();
                } else {
                    interims.append(result.text);
                }
            });
        };
        start();
        // Silence is no speech; and from now on the models are loaded.
        task->append(test::silence(500));
        task->endAudio();
        QTRY_COMPARE_WITH_TIMEOUT(failure, u"No speech was heard."_s, 20'000);
        failure.clear();

        start();
        test::play(sound, [&](const QByteArray &piece) { task->append(piece); });
        task->endAudio();
        QTRY_VERIFY_WITH_TIMEOUT(finals.size() == 2 || !failure.isEmpty(), 20'000);
        QCOMPARE(failure, QString());
        QVERIFY2(test::wordErrors(first, finals.first()) <= 1, qPrintable(finals.first()));
        QVERIFY2(test::wordErrors(second, finals.last()) <= 1, qPrintable(finals.last()));
        QVERIFY(!interims.isEmpty());
    }

    void aLineWithoutEndIsNotKept() {
        const SpeechProcess::Program installed = SpeechProcess::installed();
        QProcess program;
        program.start(installed.path, {u"--models"_s, installed.models, u"--model"_s, u"tiny"_s});
        program.write("{\"audio\":\"" + QByteArray(5 * 1024 * 1024, 'A'));
        QVERIFY(program.waitForFinished(20'000));
        QCOMPARE(program.exitCode(), 1);
        QVERIFY(program.readAllStandardOutput().contains("A line is too long."));
    }

    void faultyFile_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("missing");
        QTest::newRow("damaged model") << u"tiny/decoder.onnx"_s << false;
        QTest::newRow("damaged table of tokens") << u"tokens.txt"_s << false;
        QTest::newRow("missing library") << u"libsherpa-onnx-c-api.so"_s << true;
        QTest::newRow("missing model") << u"tiny/encoder.onnx"_s << true;
    }
    void faultyFile() {
        QFETCH(QString, file);
        QFETCH(bool, missing);
        SpeechProcess::Program program = SpeechProcess::installed();
        program.moreArguments = {u"--model"_s, u"tiny"_s};
        const QDir models(program.models);
        const QTemporaryDir copy;
        QVERIFY(QDir(copy.path()).mkpath(u"tiny"_s));
        for (const QString &name :
             {u"tiny/encoder.onnx"_s, u"tiny/decoder.onnx"_s, u"tokens.txt"_s, u"voice.onnx"_s,
              u"libonnxruntime.so"_s, u"libsherpa-onnx-c-api.so"_s}) {
            if (name != file)
                QVERIFY(QFile::link(models.absoluteFilePath(name), copy.filePath(name)));
        }
        if (!missing) {
            QVERIFY(QFile::copy(models.filePath(file), copy.filePath(file)));
            QFile damaged(copy.filePath(file));
            damaged.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
            QVERIFY(damaged.open(QIODevice::ReadWrite) && damaged.seek(damaged.size() / 2));
            const char byte = damaged.peek(1).at(0);
            QVERIFY(damaged.putChar(char(byte ^ 1)));
        }
        program.models = copy.path();

        LocalSpeech service(m_clock, program);
        QString failure;
        const auto task = service.defaultRecogniser()->startTask(true, [&](const auto &answer) {
            if (const auto *error = std::get_if<SpeechError>(&answer))
                failure = error->text;
        });
        QTRY_COMPARE_WITH_TIMEOUT(failure,
                                  missing ? u"The speech file %1 is missing."_s.arg(file)
                                          : u"The speech file %1 is damaged."_s.arg(file),
                                  20'000);
    }

private:
    SystemClock m_clock;
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
