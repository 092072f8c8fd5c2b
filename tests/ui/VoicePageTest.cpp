// The page of calls in a real web engine, without a window: what it may use, and what it may not.

#include "app/Graphics.h"
#include "store/ScriptedBackend.h"
#include "support/Processes.h"
#include "web/WebHost.h"

#include <QGuiApplication>
#include <QtTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace kiv::web {

namespace {

/// What the page posts, as text.
struct Watcher : voice::VoicePageWatcher {
    void pageMessage(const QString &channel, const QVariant &body) override {
        posts.append(channel + u' ' + body.toMap().value(u"text"_s).toString());
    }
    void pageGone() override { gone = true; }

    QStringList posts;
    bool gone = false;
};

/// A script that posts the text that a promise gives.
QString report(const QString &promise) {
    return u"%1.catch(e => e.name).then(text => "
           "window.webkit.messageHandlers.vcall.postMessage({text}))"_s.arg(promise);
}

} // namespace

class VoicePageTest : public QObject {
    Q_OBJECT

    /// What the script's promise gives in the page.
    QString ask(const QString &promise) {
        m_watcher.posts.clear();
        m_page->evaluate(report(promise));
        if (!QTest::qWaitFor([this] { return !m_watcher.posts.isEmpty(); }, 15'000))
            return u"nothing"_s;
        return m_watcher.posts.first();
    }

    test::ScriptedBackend m_backend;
    test::ScriptedBackend m_elsewhere;
    Watcher m_watcher;
    WebHost m_host{QStringLiteral(KIV_WEB_PLUGIN_FILE)};
    std::unique_ptr<voice::VoicePage> m_page;

private Q_SLOTS:
    void init() {
        QVERIFY(m_host.plugin());
        m_watcher = Watcher();
        m_page = m_host.plugin()->makeVoicePage(false, m_watcher);
        // Posted before anything else runs: the way to the program may not be there yet.
        m_page->loadHtml(u"<!doctype html><html><head></head><body><script>"_s +
                             report(u"Promise.resolve('first')"_s) + u"</script></body></html>"_s,
                         QUrl(m_backend.url().toString() + u'/'));
        QTRY_COMPARE_WITH_TIMEOUT(m_watcher.posts, QStringList{u"vcall first"_s}, 15'000);
    }
    void cleanup() { m_page.reset(); }

    void microphones_data() {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("opened");
        const QString usual = u"vcall Fake Default Audio Input"_s;
        QTest::newRow("none") << QString() << usual;
        QTest::newRow("one of them") << u"Fake Audio Input 2"_s << u"vcall Fake Audio Input 2"_s;
        QTest::newRow("one that is not there") << u"Gone \"for good\""_s << usual;
    }
    void microphones() {
        QFETCH(QString, chosen);
        m_page->setMicrophone(chosen);
        QTEST(ask(u"navigator.mediaDevices.getUserMedia({audio: {echoCancellation: true}})"
                  ".then(stream => stream.getAudioTracks()[0].label)"_s),
              "opened");
    }

    void rights_data() {
        QTest::addColumn<QString>("promise");
        QTest::addColumn<QString>("result");
        QTest::newRow("secure context")
            << u"Promise.resolve(String(isSecureContext))"_s << u"vcall true"_s;
        QTest::newRow("sound without a click")
            << u"(c => c.resume().then(() => c.state))(new AudioContext())"_s << u"vcall running"_s;
        QTest::newRow("no camera")
            << u"navigator.mediaDevices.getUserMedia({video: true}).then(() => 'seen')"_s
            << u"vcall NotAllowedError"_s;
        QTest::newRow("no messages") << u"Notification.requestPermission()"_s << u"vcall denied"_s;
        QTest::newRow("no file") << u"fetch('file:///etc/hostname').then(() => 'read')"_s
                                 << u"vcall TypeError"_s;
        QTest::newRow("no other server, unencrypted")
            << u"fetch('%1/x', {mode: 'no-cors'}).then(() => 'read')"_s.arg(
                   m_elsewhere.url().toString())
            << u"vcall TypeError"_s;
        QTest::newRow("no window")
            << u"Promise.resolve(String(window.open('/elsewhere')))"_s << u"vcall null"_s;
        QTest::newRow("no log") << u"Promise.resolve(String(console.warn('said to itself')))"_s
                                << u"vcall undefined"_s;
        QTest::newRow("no way out") << u"new Promise(yes => { location.href = '/elsewhere'; "
                                       "setTimeout(() => yes(location.pathname), 300); })"_s
                                    << u"vcall /"_s;
    }
    void rights() {
        QFETCH(QString, promise);
        QTest::failOnWarning(QRegularExpression(u"said to itself"_s));
        m_elsewhere.answerPage(u"GET x"_s, "elsewhere");
        QTEST(ask(promise), "result");
        QCOMPARE(m_elsewhere.count(u"GET x"_s), 0);
        QCOMPARE(m_backend.count(u"GET elsewhere"_s), 0);
    }

    void endOfTheProcess() {
        const QList<qint64> found = test::renderers();
        QVERIFY(!found.isEmpty());
        for (const qint64 process : found)
            kill(static_cast<pid_t>(process), SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(m_watcher.gone, 15'000);
    }
};

} // namespace kiv::web

int main(int argc, char **argv) {
    kiv::app::Graphics::choose();
    kiv::test::letEngineRunAsRoot();
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--use-fake-device-for-media-stream");
    QGuiApplication application(argc, argv);
    const kiv::app::Graphics graphics;
    kiv::web::VoicePageTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "VoicePageTest.moc"
