// Requests to the recogniser's program: no word is lost between two of them, none is told twice or
// to the wrong one, and whatever the program does ends in one clear error.

#include "support/ManualClock.h"
#include "voice/LocalSpeech.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::voice;

namespace {

/// Somebody who dictates: keeps one request open and notes what it gets, as "1 interim text".
class Dictating {
public:
    enum Renewal { Never, BeforeRelease, AfterRelease };

    explicit Dictating(SpeechService &service, Renewal renewal = BeforeRelease)
        : m_recogniser(service.defaultRecogniser()), m_renewal(renewal) {}

    void start() {
        const int number = ++m_number;
        m_task = m_recogniser->startTask(true, [this, number](const auto &answer) {
            const auto *result = std::get_if<SpeechResult>(&answer);
            const auto *error = std::get_if<SpeechError>(&answer);
            log.append(error ? u"%1 error %2 %3"_s.arg(number).arg(error->code).arg(error->text)
                             : u"%1 %2 %3"_s.arg(QString::number(number),
                                                 result->final ? u"final"_s : u"interim"_s,
                                                 result->text));
            if (result && result->final && m_renewal != Never) {
                if (m_renewal == AfterRelease)
                    m_task.reset();
                start();
            }
        });
    }
    void hear(const QByteArrayList &sounds) {
        for (const QByteArray &sound : sounds)
            m_task->append(sound);
    }
    void endAudio() { m_task->endAudio(); }
    void stop() { m_task.reset(); }
    std::unique_ptr<SpeechTask> takeTask() { return std::move(m_task); }

    QStringList log;

private:
    std::unique_ptr<SpeechRecogniser> m_recogniser;
    Renewal m_renewal;
    std::unique_ptr<SpeechTask> m_task;
    int m_number = 0;
};

SpeechProcess::Program standIn(const QStringList &more = {}) {
    return {QStringLiteral(KIV_STAND_IN), QStringLiteral("."), more};
}

} // namespace

class RequestsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void locales_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("models");
        QTest::addColumn<bool>("available");
        QTest::newRow("American") << u"en_US"_s << u"."_s << true;
        QTest::newRow("British") << u"en_GB"_s << u"."_s << true;
        QTest::newRow("Russian") << u"ru_RU"_s << u"."_s << false;
        QTest::newRow("no language") << u"C"_s << u"."_s << true;
        QTest::newRow("no models") << u"en_US"_s << u"/does/not/exist"_s << false;
    }
    void locales() {
        QFETCH(QString, locale);
        QFETCH(QString, models);
        SpeechProcess::Program program = standIn();
        program.models = models;
        LocalSpeech service(m_clock, program);
        QTEST(service.recogniser(QLocale(locale))->available(), "available");
    }

    void cycles_data() {
        QTest::addColumn<Dictating::Renewal>("renewal");
        QTest::newRow("the next before the last is let go") << Dictating::BeforeRelease;
        QTest::newRow("the last let go first") << Dictating::AfterRelease;
    }
    void cycles() {
        QFETCH(Dictating::Renewal, renewal);
        LocalSpeech service(m_clock, standIn());
        Dictating person(service, renewal);
        person.start();
        // All of it before the program has even started.
        person.hear({"interim:on", "final:one", "interim:tw", "interim:two w", "final:two words",
                     "final:", "interim:thr"});
        QVERIFY(person.log.isEmpty());
        const QStringList expected{u"1 interim on"_s,    u"1 final one"_s,       u"2 interim tw"_s,
                                   u"2 interim two w"_s, u"2 final two words"_s, u"3 final "_s,
                                   u"4 interim thr"_s};
        QTRY_COMPARE(person.log, expected);
        person.hear({"final:three"});
        QTRY_COMPARE(person.log.last(), u"4 final three"_s);
    }

    /// What was said between a final result and a request that starts soon after is the latter's.
    void handover_data() {
        QTest::addColumn<int>("pause");
        QTest::addColumn<QString>("expected");
        QTest::newRow("soon") << 900 << u"2 final two"_s;
        QTest::newRow("late") << 1100 << u"2 interim new"_s;
    }
    void handover() {
        QFETCH(int, pause);
        QFETCH(QString, expected);
        LocalSpeech service(m_clock, standIn());
        Dictating person(service, Dictating::Never);
        person.start();
        person.hear({"final:one", "final:two"});
        QTRY_COMPARE(person.log, QStringList{u"1 final one"_s});
        person.stop();
        m_clock.advance(std::chrono::milliseconds(pause));
        person.log.clear();
        person.start();
        person.hear({"interim:new"});
        QTRY_COMPARE(person.log, QStringList{expected});
    }

    void ends_data() {
        QTest::addColumn<QByteArrayList>("sounds");
        QTest::addColumn<QString>("expected");
        QTest::newRow("in mid-sentence")
            << QByteArrayList{"interim:hel", "keep:hello"} << u"1 final hello"_s;
        QTest::newRow("two at once")
            << QByteArrayList{"keep:there", "final:hello"} << u"1 final hello there"_s;
        QTest::newRow("silence") << QByteArrayList{"keep:"}
                                 << u"1 error 216 No speech was heard."_s;
        QTest::newRow("no sound") << QByteArrayList{} << u"1 error 216 No speech was heard."_s;
    }
    void ends() {
        QFETCH(QByteArrayList, sounds);
        QFETCH(QString, expected);
        LocalSpeech service(m_clock, standIn());
        Dictating person(service, Dictating::Never);
        person.start();
        person.hear(sounds);
        person.endAudio();
        person.hear({"final:too late"});
        QTRY_VERIFY(!person.log.isEmpty());
        QCOMPARE(person.log, QStringList{expected});
        // The next request begins with nothing.
        person.start();
        person.hear({"final:next"});
        QTRY_COMPARE(person.log.last(), u"2 final next"_s);
        QCOMPARE(person.log.size(), 2);
    }

    void givenUp_data() {
        QTest::addColumn<QByteArrayList>("sounds");
        QTest::addColumn<bool>("end");
        QTest::newRow("open") << QByteArrayList{"interim:old", "keep:old", "final:old"} << false;
        QTest::newRow("ending") << QByteArrayList{"keep:old", "final:old"} << true;
        QTest::newRow("nothing heard") << QByteArrayList{} << false;
    }
    void givenUp() {
        QFETCH(QByteArrayList, sounds);
        QFETCH(bool, end);
        LocalSpeech service(m_clock, standIn());
        Dictating person(service);
        for (int round = 0; round < 3; ++round) {
            person.start();
            person.hear(sounds);
            if (end)
                person.endAudio();
            person.stop();
        }
        person.start();
        person.hear({"interim:ne", "final:new"});
        QTRY_COMPARE(person.log, QStringList({u"4 interim ne"_s, u"4 final new"_s}));
    }

    void replaced() {
        LocalSpeech service(m_clock, standIn());
        Dictating person(service);
        person.start();
        person.hear({"final:old"});
        const auto older = person.takeTask();
        person.start();
        person.hear({"interim:new"});
        older->append("interim:older");
        QTRY_COMPARE(person.log,
                     QStringList({u"1 error 301 The request has ended."_s, u"2 interim new"_s}));
    }

    void failures_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("sound");
        QTest::addColumn<QString>("text");
        const QString stopped = u"Speech recognition has stopped unexpectedly. Start it again."_s;
        const QString nonsense = u"Speech recognition gave an answer that makes no sense."_s;
        QTest::newRow("killed in mid-sentence") << QStringList{} << QByteArray("die") << stopped;
        QTest::newRow("no JSON") << QStringList{} << QByteArray("babble") << nonsense;
        QTest::newRow("an endless line") << QStringList{} << QByteArray("flood") << nonsense;
        QTest::newRow("damaged model") << QStringList{u"--damaged"_s} << QByteArray("interim:never")
                                       << u"The speech file voice.onnx is damaged."_s;
    }
    void failures() {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, sound);
        QFETCH(QString, text);
        LocalSpeech service(m_clock, standIn(arguments));
        Dictating person(service);
        for (int number = 1; number <= 2; ++number) {
            person.start();
            if (arguments.isEmpty()) {
                person.hear({"interim:so far"});
                QTRY_COMPARE(person.log, QStringList{u"%1 interim so far"_s.arg(number)});
                person.log.clear();
            }
            person.hear({sound});
            QTRY_COMPARE(person.log, QStringList{u"%1 error 1 %2"_s.arg(number).arg(text)});
            person.hear({"interim:nobody listens"});
            person.log.clear();
        }
    }

    void neverStarts() {
        LocalSpeech missing(m_clock, {u"/does/not/exist"_s, u"."_s, {}});
        Dictating person(missing);
        person.start();
        QVERIFY(person.log.isEmpty());
        QTRY_COMPARE(person.log.size(), 1);

        LocalSpeech silent(m_clock, standIn({u"--never-ready"_s}));
        Dictating other(silent);
        other.start();
        m_clock.advance(29s);
        QVERIFY(other.log.isEmpty());
        m_clock.advance(2s);
        QCOMPARE(other.log,
                 QStringList{
                     u"1 error 1 Speech recognition has not started in time. Start it again."_s});
    }

    void hangs() {
        LocalSpeech service(m_clock, standIn());
        Dictating person(service);
        person.start();
        person.hear({"interim:so far"});
        QTRY_COMPARE(person.log.size(), 1);
        person.hear({"hang"});
        QTRY_VERIFY((person.hear({QByteArray(100'000, 'x')}), person.log.size() > 1));
        QCOMPARE(person.log.last(),
                 u"1 error 1 Speech recognition has stopped unexpectedly. Start it again."_s);
    }

    /// The program stays for another request and goes a minute after the last.
    void rest() {
        LocalSpeech service(m_clock, standIn());
        Dictating person(service, Dictating::Never);
        const auto program = [&] {
            person.log.clear();
            person.start();
            person.hear({"id"});
            return QTest::qWaitFor([&] { return !person.log.isEmpty(); })
                       ? person.log.first().section(u' ', 2).toInt()
                       : 0;
        };
        const pid_t first = program();
        QVERIFY(first > 0);
        person.stop();
        m_clock.advance(59s);
        QCOMPARE(program(), first);
        m_clock.advance(10min);
        QCOMPARE(::kill(first, 0), 0);
        person.stop();
        m_clock.advance(61s);
        QVERIFY(::kill(first, 0) != 0);
        const pid_t second = program();
        QVERIFY(second > 0 && second != first);
    }

private:
    test::ManualClock m_clock;
};

QTEST_GUILESS_MAIN(RequestsTest)
#include "RequestsTest.moc"
