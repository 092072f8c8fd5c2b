// A question that is spoken: the real window and the real recogniser, with a file for a microphone.

#include "SoundFiles.h"

#include "app/Application.h"
#include "driver/WindowDriver.h"
#include "speech/Spoken.h"

#include <QDir>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace kiv;

namespace {

/// The processes of this name that this one has started.
QList<pid_t> processesNamed(const QByteArray &name) {
    QList<pid_t> found;
    for (const QString &entry : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        QFile stat(u"/proc/"_s + entry + u"/stat"_s);
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = stat.readAll();
        const QList<QByteArray> rest = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (line.contains('(' + name + ')') && rest.value(1).toInt() == getpid())
            found.append(entry.toInt());
    }
    return found;
}

} // namespace

class SpokenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QLocale::setDefault(QLocale(u"en_US"_s));
        if (!voice::SpeechProcess(m_clock, voice::SpeechProcess::installed()).available())
            QSKIP("The speech files have not been fetched.");
    }

    void questionBecomesAScene() {
        start(u"Give me the weekly report, please."_s);
        driver::WindowDriver person(m_program->window());
        store::AppStore &store = m_program->store();
        QVERIFY(processesNamed("kiv-speech").isEmpty());
        QVERIFY(person.click(u"micButton"_s));
        QTRY_VERIFY(store.microphone()->level() > 0);
        QVERIFY(heardSomething());
        QVERIFY(person.waitFor([&] { return !store.chat()->draft().isEmpty(); }));
        const QString shown = person.find(u"askField"_s)->property("text").toString();
        QCOMPARE(shown, store.chat()->draft());
        QVERIFY2(test::wordErrors(u"Give me the weekly report please"_s, shown) == 0,
                 qPrintable(shown));
        QVERIFY(store.dictation()->dictating()); // until the person ends it

        person.press(Qt::Key_Return);
        QVERIFY(!store.dictation()->dictating());
        QTRY_COMPARE_WITH_TIMEOUT(store.canvas()->phase(), store::Phase::Done, 30'000);
        QCOMPARE(store.canvas()->art(), u"report"_s);
    }

    void killedInMidSentence() {
        start(u"Compare all the costs of hosting with the plan for the next quarter."_s);
        driver::WindowDriver person(m_program->window());
        store::AppStore &store = m_program->store();
        QVERIFY(person.click(u"askField"_s));
        m_typed = u"Well:"_s;
        person.type(m_typed);
        QVERIFY(person.click(u"micButton"_s));
        QVERIFY(heardSomething());
        const QString said = heard().trimmed();
        const QList<pid_t> recognisers = processesNamed("kiv-speech");
        QCOMPARE(recognisers.size(), 1);
        ::kill(recognisers.first(), SIGKILL);
        QVERIFY(person.waitFor([&] { return !store.dictation()->dictating(); }));
        QCOMPARE(store.chat()->chatNote(),
                 u"Speech recognition has stopped unexpectedly. Start it again."_s);
        QVERIFY2(store.chat()->draft().startsWith(u"Well: "_s + said.section(u' ', 0, 0)),
                 qPrintable(store.chat()->draft()));

        const qsizetype kept = store.chat()->draft().size();
        QVERIFY(person.click(u"micButton"_s));
        QVERIFY(person.waitFor([&] { return store.chat()->draft().size() > kept; }));
        QCOMPARE(store.chat()->chatNote(), QString());
    }

    void cleanup() {
        m_program.reset();
        m_typed.clear();
    }

private:
    /// The program, signed in, with a microphone that hears this sentence.
    void start(const QString &sentence) {
        m_profile = std::make_unique<QTemporaryDir>();
        const QByteArray sound = test::silence(300) + test::spoken(sentence);
        QVERIFY2(sound.size() > 1'000 * test::bytesPerMs, "There is no voice: flite is missing");
        QFile file(m_profile->filePath(u"spoken.wav"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(test::wavFile({}, sound));
        file.close();
        app::Options options;
        options.places = app::Places::below(m_profile->path());
        options.audioFile = file.fileName();
        m_program = std::make_unique<app::Application>(options);
        m_program->start();
        store::AppStore &store = m_program->store();
        QTRY_COMPARE_WITH_TIMEOUT(store.scope()->auth(), store::AuthPhase::Anon, 15'000);
        store.session()->submitAuth(u"ada@example.org"_s, u"long enough"_s, true);
        QTRY_VERIFY_WITH_TIMEOUT(store.scope()->chatTarget() && store.chat()->msgs()->count() == 1,
                                 15'000);
    }

    /// The words as they come; where the machine is busy, the recogniser has them only at the end.
    QString heard() const {
        const QString interim = m_program->store().dictation()->dictationInterim();
        return interim.isEmpty() ? m_program->store().chat()->draft().mid(m_typed.size()) : interim;
    }
    bool heardSomething() const {
        return QTest::qWaitFor([&] { return !heard().isEmpty(); }, 60'000);
    }

    SystemClock m_clock;
    QString m_typed; ///< before anything is said
    std::unique_ptr<QTemporaryDir> m_profile;
    std::unique_ptr<app::Application> m_program;
};

QTEST_MAIN(SpokenTest)
#include "SpokenTest.moc"
