// The cycle of dictation over a scripted recogniser and microphone.

#include "ScriptedVoice.h"

#include "voice/DictationEngine.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv;
using namespace kiv::voice;

namespace {

/// An engine that writes down what it tells: "interim a", "final a", "error a".
struct Dictation {
    Dictation() {
        engine->setService(&speech);
        engine->onInterim = [this](const QString &text) { told.append(u"interim "_s + text); };
        engine->onFinal = [this](const QString &text) { told.append(u"final "_s + text); };
        engine->onError = [this](const QString &text) { told.append(u"error "_s + text); };
    }

    void run() {
        engine->start();
        speech.authorise();
    }
    QStringList take() { return std::exchange(told, {}); }
    bool isOff() const {
        return !engine->running() && speech.open == 0 && microphones.openId.isNull();
    }

    test::ScriptedSpeech speech;
    test::ScriptedMicrophones microphones;
    std::unique_ptr<DictationEngine> engine =
        std::make_unique<DictationEngine>(microphones.input({}));
    QStringList told;
};

const QString cleared = u"interim "_s;

} // namespace

class DictationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QLocale::setDefault(QLocale(u"en_US"_s));
        QTest::failOnWarning(QRegularExpression(u"."_s));
    }

    void failures_data() {
        QTest::addColumn<std::function<void(Dictation &)>>("cause");
        QTest::addColumn<QStringList>("told");
        const auto row = [](const char *name, std::function<void(Dictation &)> cause,
                            const QStringList &told) { QTest::newRow(name) << cause << told; };
        const auto answered = [](SpeechAuthorisation answer) {
            return [answer](Dictation &d) {
                d.engine->start();
                d.speech.authorise(answer);
            };
        };
        const QString notAllowed =
            u"error Speech recognition is not allowed in System Settings → Privacy."_s;
        const QString notNow = u"error Speech recognition is not available right now."_s;
        const QString noLocale = u"error Speech recognition is not available for en_US."_s;
        const QString noMicrophone = u"error Microphone is not available."_s;

        row("denied", answered(SpeechAuthorisation::Denied), {notAllowed});
        row("restricted", answered(SpeechAuthorisation::Restricted), {notAllowed});
        row("not determined", answered(SpeechAuthorisation::NotDetermined), {notNow});
        row("no service",
            [](Dictation &d) {
                d.engine->setService(nullptr);
                d.engine->start();
            },
            {notNow});
        row("no recogniser",
            [](Dictation &d) {
                d.speech.knowsLocale = d.speech.hasDefault = false;
                d.run();
            },
            {noLocale});
        row("recogniser unavailable",
            [](Dictation &d) {
                d.speech.available = false;
                d.run();
            },
            {noLocale});
        row("microphone does not open",
            [](Dictation &d) {
                QTest::ignoreMessage(QtWarningMsg, "The microphone cannot be opened: busy");
                d.microphones.opens = false;
                d.run();
            },
            {noMicrophone, cleared});
        row("microphone unplugged",
            [](Dictation &d) {
                QTest::ignoreMessage(QtWarningMsg, "The microphone is gone: unplugged");
                d.run();
                d.microphones.unplug();
            },
            {noMicrophone, cleared});
        row("recognition fails",
            [](Dictation &d) {
                d.run();
                d.speech.interim(u"how"_s);
                d.speech.fail(1101, u"The recogniser ended."_s);
            },
            {u"interim how"_s, u"error The recogniser ended."_s, cleared});
    }
    void failures() {
        QFETCH(std::function<void(Dictation &)>, cause);
        QFETCH(QStringList, told);
        Dictation d;
        cause(d);
        QCOMPARE(d.take(), told);
        QVERIFY(d.isOff());

        // What was wrong is over: the next start works.
        d.speech.knowsLocale = d.speech.available = d.microphones.opens = true;
        d.engine->setService(&d.speech);
        d.run();
        d.speech.finish(u"again"_s);
        QCOMPARE(d.take(), (QStringList{u"final again"_s, cleared}));
    }

    void utterances() {
        Dictation d;
        d.run();
        QVERIFY(d.speech.wasOnDevice);
        d.microphones.hear("ab");
        d.speech.interim(u"how"_s);
        d.speech.interim(u"how many"_s);
        d.speech.finish(u"How many?"_s);
        QCOMPARE(d.take(), (QStringList{u"interim how"_s, u"interim how many"_s,
                                        u"final How many?"_s, cleared}));

        // The next request hears what comes from now on, through the same open microphone.
        QCOMPARE(d.speech.requests, 2);
        QCOMPARE(d.speech.open, 1);
        QCOMPARE(d.microphones.starts, 1);
        d.microphones.hear("cd");
        QCOMPARE(d.speech.heard, "cd"_ba);
    }

    void requestsWithoutText_data() {
        QTest::addColumn<int>("code"); // 0: a final result without text
        QTest::addColumn<QStringList>("told");
        QTest::newRow("nothing understood") << 0 << QStringList{cleared};
        QTest::newRow("no speech") << 216 << QStringList();
        QTest::newRow("request ended") << 301 << QStringList();
    }
    void requestsWithoutText() {
        QFETCH(int, code);
        QFETCH(QStringList, told);
        Dictation d;
        d.run();
        if (code == 0)
            d.speech.finish({});
        else
            d.speech.fail(code, u"not for the person"_s);
        QCOMPARE(d.take(), told);
        QCOMPARE(d.speech.requests, 2);
        QVERIFY(d.engine->running());
    }

    void preferredLocaleAndServer() {
        Dictation d;
        d.speech.knowsLocale = false; // the service's own has to do
        d.speech.onDevice = false;
        d.run();
        QVERIFY(d.engine->running());
        QVERIFY(!d.speech.wasOnDevice);
    }

    void lateNewsIsDropped() {
        Dictation d;
        d.run();
        d.engine->stop();
        QVERIFY(d.isOff());
        QCOMPARE(d.take(), QStringList{cleared});
        d.speech.interim(u"late"_s);
        d.speech.finish(u"late"_s);
        d.speech.fail(1101, u"late"_s);
        d.microphones.hear("ab");
        QCOMPARE(d.take(), QStringList());
        QCOMPARE(d.speech.requests, 1);

        // The answer to a start that was taken back.
        d.engine->start();
        d.engine->stop();
        d.take();
        d.speech.authorise();
        QVERIFY(d.isOff());
        QCOMPARE(d.take(), QStringList());

        // … and to one whose engine is gone.
        d.engine->start();
        d.engine.reset();
        d.speech.authorise();
    }

    void stoppingFromWithinACallback() {
        Dictation d;
        d.engine->onFinal = [&](const QString &) { d.engine->stop(); };
        d.run();
        d.speech.finish(u"That is all."_s);
        QVERIFY(d.isOff());
        QCOMPARE(d.speech.requests, 1);
    }

    void callbacksMayBeMissing() {
        Dictation d;
        d.engine->onInterim = d.engine->onFinal = d.engine->onError = nullptr;
        d.run();
        d.speech.interim(u"a"_s);
        d.speech.finish(u"a"_s);
        d.speech.fail(1, u"a"_s);
        QVERIFY(d.isOff());
    }
};

QTEST_GUILESS_MAIN(DictationTest)
#include "DictationTest.moc"
