// Ten sentences dictated in real time, beside the same sentences given to the recogniser whole.

#include "Measure.h"

#include "base/SystemClock.h"
#include "speech/Spoken.h"
#include "voice/SpeechProcess.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>

#include <unistd.h>

namespace kiv::bench {

using namespace Qt::StringLiterals;

namespace {

const QStringList sentences{
    u"Please show me the budget of the marketing team for the next quarter."_s,
    u"Which projects are behind schedule and who is working on them?"_s,
    u"Compare the three hosting options and tell me which one is the cheapest."_s,
    u"Write a short summary of the meeting that we had yesterday afternoon."_s,
    u"How many customers have cancelled their subscription since the beginning of the year?"_s,
    u"Draw a chart of our monthly income and of what we have spent."_s,
    u"The release has to wait until the remaining problems are solved."_s,
    u"Ask the design agent to prepare a new picture for the front page."_s,
    u"What are the biggest risks of moving to another country?"_s,
    u"Thank you, that is all that I wanted to know for today."_s};

/// The recogniser's program, and when it said what.
class Dictated {
public:
    static bool isAvailable() {
        SystemClock clock;
        return voice::SpeechProcess(clock, voice::SpeechProcess::installed()).available();
    }

    Dictated() : m_process(m_clock, voice::SpeechProcess::installed()) {
        QObject::connect(&m_process, &voice::SpeechProcess::failed,
                         [](const QString &why) { qFatal("%s", qPrintable(why)); });
        QObject::connect(&m_process, &voice::SpeechProcess::interim, [this] {
            if (firstInterimMs < 0)
                firstInterimMs = m_since.elapsed();
        });
        QObject::connect(&m_process, &voice::SpeechProcess::final, [this](const QString &said) {
            finalMs = m_since.elapsed();
            text += u' ' + said;
        });
        QObject::connect(&m_process, &voice::SpeechProcess::ended, &m_ended, &QEventLoop::quit);
        whole(test::silence(100)); // until it is loaded
    }

    /// Says a sentence and is silent until it must have been understood.
    void live(const QByteArray &sound) {
        begin();
        test::play(sound + test::silence(2000),
                   [this](const QByteArray &piece) { m_process.sendSound(piece); });
        m_process.sendEnd();
        m_ended.exec();
    }

    void whole(const QByteArray &sound) {
        begin();
        m_process.sendSound(sound);
        m_process.sendEnd();
        m_ended.exec();
    }

    double processorNanoseconds() const {
        QFile file(u"/proc/%1/stat"_s.arg(m_process.processId()));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The program has gone");
        const QByteArrayList fields = file.readAll().split(' ');
        constexpr int user = 13, system = 14;
        const double ticks = fields.at(user).toDouble() + fields.at(system).toDouble();
        return ticks * 1e9 / double(::sysconf(_SC_CLK_TCK));
    }

    QString text;
    qint64 firstInterimMs = -1;
    qint64 finalMs = -1;

private:
    void begin() {
        text.clear();
        firstInterimMs = finalMs = -1;
        m_since.start();
    }

    SystemClock m_clock;
    voice::SpeechProcess m_process;
    QElapsedTimer m_since;
    QEventLoop m_ended;
};

} // namespace

QList<Row> dictation() {
    constexpr double never = 1e12;
    constexpr double nsInMs = 1e6;
    Row errors{.name = u"dictation, wrong words"_s,
               .peer = u"whole"_s,
               .target = 10,
               .unit = Unit::Percent};
    Row first{.name = u"dictation, first words"_s, .peer = u"read whole"_s, .target = 1.1e9};
    Row last{.name = u"dictation, last word"_s, .peer = u"read whole"_s, .target = 1.4e9};
    Row processor{.name = u"dictation, processor"_s, .peer = u"real time"_s};
    if (!Dictated::isAvailable())
        return {{.name = u"dictation"_s, .missing = u"files for speech"_s}};
    Dictated dictated;
    qsizetype words = 0;
    for (const QString &sentence : sentences) {
        const QByteArray sound = test::spoken(sentence);
        if (sound.isEmpty())
            qFatal("Flite does not speak");
        const auto [voiceBegin, voiceEnd] = test::voiceIn(sound);
        const auto slowest = [](Row &row, qint64 at, int since) {
            row.figure = std::max(row.figure, at < 0 ? never : double(at - since) * nsInMs);
        };
        words += test::plainWords(sentence).size();

        QElapsedTimer real;
        real.start();
        const double before = dictated.processorNanoseconds();
        dictated.live(sound);
        processor.figure += dictated.processorNanoseconds() - before;
        processor.peerFigure += double(real.nsecsElapsed());
        errors.figure += test::wordErrors(sentence, dictated.text);
        slowest(first, dictated.firstInterimMs, voiceBegin);
        slowest(last, dictated.finalMs, voiceEnd);

        dictated.whole(sound);
        errors.peerFigure += test::wordErrors(sentence, dictated.text);
        last.peerFigure = std::max(last.peerFigure, double(dictated.finalMs) * nsInMs);
    }
    first.peerFigure = last.peerFigure;
    errors.figure *= 100.0 / double(words);
    errors.peerFigure *= 100.0 / double(words);
    processor.target = processor.peerFigure;
    return {errors, first, last, processor};
}

} // namespace kiv::bench
