// Calls as they are: the real page with the real client in the real web engine, off screen, against
// the embedded server's socket, with a file as microphone.

#include "app/Application.h"
#include "driver/WindowDriver.h"
#include "support/Processes.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using store::CallPhase;

namespace {

constexpr int patience = 15'000;

/// A sentence, and silence until it comes round again.
QString spokenFile(const QTemporaryDir &folder) {
    const QString path = folder.filePath(u"caller.wav"_s);
    QProcess voice;
    voice.start(u"espeak-ng"_s,
                {u"-m"_s, u"-w"_s, path,
                 u"<speak>Where are we against the plan?<break time=\"9000ms\"/></speak>"_s});
    return voice.waitForFinished() && voice.exitCode() == 0 ? path : QString();
}

} // namespace

class CallTest : public QObject {
    Q_OBJECT

    store::AppStore &store() { return m_program->store(); }
    store::CallRoom *call() { return store().call(); }
    bool isPhase(CallPhase phase) { return call()->call() && call()->callPhase() == phase; }

    QJsonObject control(const QString &path, const QJsonObject &body = {}) {
        QNetworkRequest request(store().net().baseUrl().toString() + u"/_control/"_s + path);
        request.setRawHeader("Origin", store().net().baseUrl().toEncoded());
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
        std::unique_ptr<QNetworkReply> reply(
            body.isEmpty() ? m_network.get(request)
                           : m_network.post(request, QJsonDocument(body).toJson()));
        if (!QTest::qWaitFor([&] { return reply->isFinished(); }, patience))
            return {};
        return QJsonDocument::fromJson(reply->readAll()).object();
    }
    /// What the server saw of the call.
    QJsonObject seen() { return control(u"voice"_s); }
    void order(const QJsonArray &faults) { control(u"faults"_s, {{u"faults"_s, faults}}); }
    bool dial() {
        call()->callAction();
        return QTest::qWaitFor([this] { return isPhase(CallPhase::Active); }, patience);
    }
    bool hangUp() {
        call()->hangupCall();
        return QTest::qWaitFor([this] { return !call()->call() && !call()->isTellingEnd(); },
                               patience);
    }
    QStringList shownHints() {
        const driver::WindowDriver window(m_program->window());
        QStringList shown;
        for (int place = 0; const QQuickItem *toast = window.find(u"toast:%1"_s.arg(place));
             ++place)
            shown.append(toast->property("words").toString());
        return shown;
    }
    QStringList said(bool byOwner) {
        QStringList texts;
        for (const store::CallLine &line : call()->callTranscript()->lines()) {
            if (line.kind == store::CallLineKind::Speech && line.isOwner() == byOwner)
                texts.append(line.text);
        }
        return texts;
    }

private Q_SLOTS:
    void initTestCase() {
        if (!QFile::exists(QCoreApplication::applicationDirPath() +
                           u"/../share/kiv/vendor/elevenlabs-client.1.21.0.js"_s))
            QSKIP("the voice client was not fetched when the program was set up");
        app::Options options;
        options.places = app::Places::below(m_folder.path());
        options.sandboxArguments = {u"--control"_s};
        options.audioFile = m_microphone;
        m_program = std::make_unique<app::Application>(options);
        m_program->start();
        QTRY_COMPARE_WITH_TIMEOUT(store().scope()->auth(), store::AuthPhase::Anon, patience);
        store().session()->submitAuth(u"caller@example.org"_s, u"correct horse"_s, true);
        QTRY_VERIFY_WITH_TIMEOUT(
            store().scope()->chatTarget() && store().chat()->msgs()->count() > 0, patience);
    }

    void cleanup() {
        order({});
        call()->leaveCall();
        QTRY_VERIFY(!call()->isTellingEnd());
    }

    void conversation() {
        QVERIFY(!test::processFile(getpid(), u"maps"_s).contains("libQt6WebEngineCore"));
        // Longer in units than in characters: the page cuts it once more.
        store().chat()->msgs()->append(store::localMsg(store::Who::You, u"😀"_s.repeated(3000)));
        QVERIFY2(dial(), qPrintable(call()->callHint()));
        QVERIFY(test::processFile(getpid(), u"maps"_s).contains("libQt6WebEngineCore"));
        QTRY_VERIFY_WITH_TIMEOUT(!said(false).isEmpty(), patience);
        QVERIFY2(said(false).first().contains(u"KIV"_s), qPrintable(said(false).first()));
        QTRY_COMPARE_WITH_TIMEOUT(call()->callMode(), u"speaking"_s, patience);
        QTRY_VERIFY_WITH_TIMEOUT(seen()[u"audio_seconds"_s].toDouble() > 1, patience);
        QCOMPARE(seen()[u"digest"_s].toString(), u"😀"_s.repeated(800));
        QVERIFY(seen()[u"contextual_updates"_s][0].toString().startsWith(u"Recent text chat"_s));

        // The file's sentence is heard, as words or as somebody's turn, and answered.
        QTRY_VERIFY_WITH_TIMEOUT(!said(true).isEmpty(), 2 * patience);
        qInfo("heard: %s", qPrintable(said(true).join(u" / "_s)));
        QTRY_VERIFY_WITH_TIMEOUT(said(false).size() >= 2, patience);
        const auto answers = said(false).size();
        call()->callSay(u"What is blocked?"_s);
        QTRY_VERIFY_WITH_TIMEOUT(said(false).size() > answers, patience);
        QCOMPARE(said(true).count(u"What is blocked?"_s), 1);
        qInfo("answered: %s", qPrintable(said(false).last()));

        // Between the sentences the file is silent as well: what counts is that it is heard, and
        // then is not for longer than from one sentence to the next.
        QTRY_VERIFY_WITH_TIMEOUT(!seen()[u"muted"_s].toBool(), patience);
        call()->toggleMute();
        QTRY_VERIFY_WITH_TIMEOUT(seen()[u"muted"_s].toBool(), patience);
        const QDeadlineTimer nextSentence(12'000);
        while (!nextSentence.hasExpired())
            QVERIFY(seen()[u"muted"_s].toBool());
        call()->toggleMute();
        QTRY_VERIFY_WITH_TIMEOUT(!seen()[u"muted"_s].toBool(), patience);
        QTRY_VERIFY_WITH_TIMEOUT(
            control(u"beacons"_s)[u"beacons"_s][u"voice_call_timing"_s].toInt() > 0, patience);

        QVERIFY(hangUp());
        QTRY_COMPARE_WITH_TIMEOUT(seen()[u"state"_s].toString(), u"ended"_s, patience);
        const auto &messages = store().chat()->msgs()->messages();
        QVERIFY(std::ranges::any_of(messages, [](const store::Msg &message) {
            return message.callHead && message.text.startsWith(u"Call · 0:"_s);
        }));
        call()->loadCallHistory();
        QTRY_COMPARE_WITH_TIMEOUT(call()->callHistory()->count(), 1, patience);
    }

    void lostLines() {
        order({u"call-drop=2500,times=1"_s});
        QVERIFY(dial());
        QTRY_VERIFY_WITH_TIMEOUT(call()->callReconnecting(), patience);
        QTRY_VERIFY_WITH_TIMEOUT(!call()->callReconnecting() && isPhase(CallPhase::Active),
                                 patience);
        QTRY_COMPARE_WITH_TIMEOUT(seen()[u"sockets"_s].toInt(), 2, patience);
        QVERIFY(hangUp());

        order({u"call-drop=2000"_s});
        QVERIFY(dial());
        QTRY_VERIFY_WITH_TIMEOUT(isPhase(CallPhase::Ending), patience);
        QVERIFY2(call()->callError().startsWith(u"Voice connection error"_s),
                 qPrintable(call()->callError()));
        QCOMPARE(seen()[u"sockets"_s].toInt(), 2);
    }

    void refusals_data() {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("hint"); // a part of it: the client has its own words
        QTest::newRow("neither transport") << u"call-no-transport"_s << u"no voice transport"_s;
        QTest::newRow("media alone")
            << u"call-token-only"_s << u"could not establish signal connection"_s;
        QTest::newRow("socket refused")
            << u"status=503,path=/voice/socket"_s << u"Connection closed unexpectedly"_s;
        QTest::newRow("no money") << u"call-refused,code=insufficient_balance"_s
                                  << u"Not enough tokens — top up in Billing to call."_s;
    }
    void refusals() {
        QFETCH(QString, fault);
        QFETCH(QString, hint);
        order({fault});
        call()->callAction();
        QTRY_VERIFY_WITH_TIMEOUT(!shownHints().filter(hint).isEmpty(), 2 * patience);
        QVERIFY(!call()->call());
        order({});
        QTRY_VERIFY(!call()->isTellingEnd());
        QVERIFY2(dial(), "a call after it");
    }

    void mediaThatFailsBesideASocket() {
        order({u"call-with-token"_s});
        QVERIFY(dial());
    }

    /// The engine gives up after 25 seconds; what connects a second later is hung up at once.
    void lateConnection() {
        order({u"latency=26000,path=/voice/socket,times=1"_s});
        call()->callAction();
        QTRY_VERIFY_WITH_TIMEOUT(isPhase(CallPhase::Connecting), patience);
        QTRY_VERIFY_WITH_TIMEOUT(!call()->call(), 28'000);
        QTest::qWait(3000);
        QVERIFY(!call()->call());
        QVERIFY(seen()[u"state"_s].toString() != u"open"_s);
    }

    void endOfThePagesProcess() {
        QVERIFY(dial());
        for (const qint64 process : test::renderers())
            kill(static_cast<pid_t>(process), SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(isPhase(CallPhase::Ending), patience);
        QVERIFY2(call()->callError().contains(u"stopped"_s), qPrintable(call()->callError()));
        call()->hangupCall();
        QTRY_VERIFY(!call()->isTellingEnd());
        QVERIFY2(dial(), "a call on a fresh page");
    }

    void cleanupTestCase() { m_program.reset(); }

public:
    explicit CallTest(const QString &microphone) : m_microphone(microphone) {}

private:
    QString m_microphone;
    QTemporaryDir m_folder;
    QNetworkAccessManager m_network;
    std::unique_ptr<app::Application> m_program;
};

int main(int argc, char **argv) {
    app::Application::prepareProcess();
    kiv::test::letEngineRunAsRoot();
    const QTemporaryDir folder;
    const QString microphone = spokenFile(folder);
    // Nothing here may reach another computer.
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS",
            "--host-resolver-rules=\"MAP * ~NOTFOUND,EXCLUDE 127.0.0.1,EXCLUDE localhost\"");
    QGuiApplication application(argc, argv);
    CallTest test(microphone);
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "CallTest.moc"
