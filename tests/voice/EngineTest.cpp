// The native half of the voice bridge, against a page that a script plays.

#include "ScriptedPage.h"
#include "base/Work.h"
#include "support/ManualClock.h"
#include "voice/VoiceEngine.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using voice::VoiceEngine;

namespace {

QString textOf(const VoiceEngine::Event &event) {
    struct Text {
        QString operator()(const VoiceEngine::Connected &was) const { return was.transport; }
        QString operator()(const VoiceEngine::Mode &was) const { return u"mode "_s + was.mode; }
        QString operator()(const VoiceEngine::Message &was) const {
            return u"message %1|%2|%3"_s.arg(was.who, was.text, was.partial ? u"partial"_s : u""_s);
        }
        QString operator()(const VoiceEngine::Ping &was) const { return u"ping %1"_s.arg(was.ms); }
        QString operator()(const VoiceEngine::Error &was) const { return u"error "_s + was.text; }
        QString operator()(const VoiceEngine::Disconnect &was) const {
            return u"disconnect %1|%2|%3|%4"_s.arg(was.reason, was.message)
                .arg(was.closeCode)
                .arg(was.closeReason);
        }
        QString operator()(const VoiceEngine::ConnectFailed &was) const { return was.text; }
    };
    return std::visit(Text(), event);
}

} // namespace

class EngineTest : public QObject {
    Q_OBJECT

    struct Fixture {
        Fixture() {
            engine.onEvent = [this](const auto &event) { events.append(textOf(event)); };
        }
        void warmUp() {
            work.start([this](Cancel cancel) { return note(engine.warmUp(cancel)); });
        }
        void start(const QString &session = u"{}"_s, const QString &digest = {}) {
            work.start([=, this](Cancel cancel) {
                return noteStart(engine.start(session, digest, cancel));
            });
        }
        QCoro::Task<void> note(QCoro::Task<void> waiting) {
            try {
                co_await std::move(waiting);
                outcomes.append(u"warm"_s);
            } catch (const voice::VoiceError &error) {
                outcomes.append(error.errorDescription());
            }
        }
        QCoro::Task<void> noteStart(QCoro::Task<QString> waiting) {
            try {
                const QString transport = co_await std::move(waiting);
                outcomes.append(transport);
            } catch (const voice::VoiceError &error) {
                outcomes.append(error.errorDescription());
            }
        }
        void post(const QVariantMap &message) {
            pages.post(message);
            QCoreApplication::sendPostedEvents();
        }
        /// Warmed up, with nothing on record.
        void ready() {
            warmUp();
            post({{u"t"_s, u"ready"_s}});
            outcomes.clear();
        }

        test::ManualClock clock;
        test::ScriptedPages pages;
        QStringList events;
        QStringList outcomes;
        VoiceEngine engine{clock, pages, QUrl(u"https://kiv.example/base"_s)};
        Work work;
    };

private Q_SLOTS:
    void warmUp() {
        Fixture f;
        f.start();
        QCOMPARE(f.outcomes, QStringList{u"Voice engine is not ready"_s});
        f.outcomes.clear();
        f.warmUp();
        f.warmUp();
        QCOMPARE(f.pages.loads, 1);
        QCOMPARE(f.pages.baseUrl, QUrl(u"https://kiv.example/base/"_s));
        // A client that does not load says so to nobody; the page stays awaited.
        f.post({{u"t"_s, u"connectFail"_s}, {u"message"_s, u"SDK load failed"_s}});
        f.start();
        QCOMPARE(f.outcomes, QStringList{u"Voice engine is not ready"_s});
        f.outcomes.clear();
        f.engine.giveUpWarmUp();
        QCOMPARE(f.outcomes, QStringList(2, u"Could not load the voice engine"_s));
        f.outcomes.clear();
        f.warmUp();
        QCOMPARE(f.pages.loads, 2);
        QCOMPARE(f.pages.made, 1);
        f.post({{u"t"_s, u"ready"_s}});
        f.warmUp();
        QCOMPARE(f.outcomes, QStringList(2, u"warm"_s));
        QCOMPARE(f.pages.loads, 2);

        Fixture without;
        without.pages.available = false;
        without.warmUp();
        QCOMPARE(without.outcomes, QStringList{u"Voice engine is not ready"_s});
    }

    void connecting_data() {
        QTest::addColumn<QVariantMap>("answer"); // none: 25 seconds pass
        QTest::addColumn<QString>("outcome");
        const auto failure = [](const QVariant &message) {
            return QVariantMap{{u"t"_s, u"connectFail"_s}, {u"message"_s, message}};
        };
        QTest::newRow("socket") << QVariantMap{{u"t"_s, u"connected"_s},
                                               {u"transport"_s, u"websocket"_s}}
                                << u"websocket"_s;
        QTest::newRow("no word which") << QVariantMap{{u"t"_s, u"connected"_s}} << QString();
        QTest::newRow("failed") << failure(u"no voice transport"_s) << u"no voice transport"_s;
        QTest::newRow("failed without a word") << failure({}) << u"Could not connect the call"_s;
        QTest::newRow("silence") << QVariantMap() << u"voice connect timeout"_s;
    }
    void connecting() {
        QFETCH(QVariantMap, answer);
        Fixture f;
        f.ready();
        f.start(u"{\"a\":\"</script>\"}"_s, u"You: \"hi\"\n\\ё"_s);
        QCOMPARE(f.pages.scripts, QStringList{u"window.__nativeStart("
                                              "\"{\\\"a\\\":\\\"<\\/script>\\\"}\", "
                                              "\"You: \\\"hi\\\"\\n\\\\ё\")"_s});
        f.clock.advance(24'999ms);
        QVERIFY(f.outcomes.isEmpty());
        if (answer.isEmpty())
            f.clock.advance(1ms);
        else
            f.post(answer);
        QFETCH(QString, outcome);
        QCOMPARE(f.outcomes, QStringList{outcome});
    }

    void lateConnectionIsTornDown() {
        Fixture f;
        f.ready();
        f.start();
        f.clock.advance(25s);
        f.post({{u"t"_s, u"connected"_s}, {u"transport"_s, u"webrtc"_s}});
        QCOMPARE(f.pages.scripts.last(), u"window.__nativeEnd()"_s);
        // The same for one that the person no longer waits for; the next start is not disturbed.
        f.start();
        f.work.cancel();
        f.post({{u"t"_s, u"connected"_s}});
        QCOMPARE(f.pages.calls(u"End"_s).size(), 2);
        f.clock.advance(20s);
        f.start();
        f.clock.advance(24s);
        QCOMPARE(f.outcomes.size(), 1);
        f.post({{u"t"_s, u"connected"_s}, {u"transport"_s, u"websocket"_s}});
        f.clock.advance(60s);
        QCOMPARE(f.outcomes.last(), u"websocket"_s);
    }

    /// What the call before had on its way when the next one began.
    void lateWordOfTheCallBefore() {
        Fixture f;
        f.ready();
        f.start();
        f.work.cancel();
        f.start();
        const auto told = [](const char *type, const QVariant &start) {
            return QVariantMap{{u"t"_s, QString::fromLatin1(type)}, {u"start"_s, start}};
        };
        for (const char *type : {"connected", "connectFail", "disconnect", "error"})
            f.post(told(type, 1));
        QCOMPARE(f.outcomes, QStringList());
        QCOMPARE(f.events, QStringList());
        QVERIFY(f.pages.calls(u"End"_s).isEmpty());
        f.post(told("connected", 2.0));
        QCOMPARE(f.outcomes, QStringList{QString()});
        f.post(told("error", 2.0));
        QCOMPARE(f.events, QStringList{u"error "_s});
    }

    void endOfTheProcess() {
        Fixture f;
        int told = 0;
        f.engine.onGone = [&] { ++told; };
        f.ready();
        f.start();
        f.pages.die();
        QCOMPARE(told, 0); // not from within the page
        QCoreApplication::sendPostedEvents();
        f.start();
        f.warmUp();
        QCOMPARE(told, 1);
        QCOMPARE(f.outcomes,
                 (QStringList{u"Could not connect the call"_s, u"Voice engine is not ready"_s,
                              u"Voice engine is not ready"_s}));
    }

    void messages_data() {
        QTest::addColumn<QVariantMap>("message");
        QTest::addColumn<QString>("event"); // empty: dropped
        const auto row = [](const char *name, const QVariantMap &message, const QString &event) {
            QTest::newRow(name) << message << event;
        };
        row("speaking", {{u"t"_s, u"mode"_s}, {u"mode"_s, u"speaking"_s}}, u"mode speaking"_s);
        row("no mode", {{u"t"_s, u"mode"_s}, {u"mode"_s, 3}}, u"mode listening"_s);
        row("said", {{u"t"_s, u"message"_s}, {u"message"_s, u"  hi \n"_s}, {u"source"_s, u"ai"_s}},
            u"message ai|hi|"_s);
        row("partly", {{u"t"_s, u"message"_s}, {u"message"_s, u"hi"_s}, {u"type"_s, u"partial"_s}},
            u"message |hi|partial"_s);
        row("more than anybody says",
            {{u"t"_s, u"message"_s}, {u"message"_s, u"x"_s.repeated(1'000'000)}},
            u"message |"_s + u"x"_s.repeated(20'000) + u'|');
        row("nothing said", {{u"t"_s, u"message"_s}, {u"message"_s, u" \n\t"_s}}, {});
        row("ping", {{u"t"_s, u"ping"_s}, {u"ms"_s, 41.5}}, u"ping 41.5"_s);
        row("ping of no number", {{u"t"_s, u"ping"_s}, {u"ms"_s, u"41"_s}}, u"ping 0"_s);
        row("error", {{u"t"_s, u"error"_s}}, u"error "_s);
        row("disconnect",
            {{u"t"_s, u"disconnect"_s},
             {u"reason"_s, u"error"_s},
             {u"message"_s, u"gone"_s},
             {u"closeCode"_s, 1006.0},
             {u"closeReason"_s, u"net"_s}},
            u"disconnect error|gone|1006|net"_s);
        row("disconnect of other types",
            {{u"t"_s, u"disconnect"_s}, {u"reason"_s, 1}, {u"closeCode"_s, u"1006"_s}},
            u"disconnect ||0|"_s);
        row("unknown", {{u"t"_s, u"dance"_s}}, {});
        row("no type", {{u"mode"_s, u"speaking"_s}}, {});
    }
    void messages() {
        QFETCH(QVariantMap, message);
        QFETCH(QString, event);
        Fixture f;
        f.ready();
        f.pages.post(message);
        QVERIFY(f.events.isEmpty()); // not from within the page
        f.pages.postOn(u"other"_s, message);
        f.pages.postOn(u"vcall"_s, QVariantList{message});
        QCoreApplication::sendPostedEvents();
        QCOMPARE(f.events, event.isEmpty() ? QStringList() : QStringList{event});
        f.engine.onEvent = nullptr;
        f.post(message);
    }

    void duringACall() {
        Fixture f;
        f.engine.setMuted(true);
        f.engine.seedChatContext(u"before"_s);
        QVERIFY(f.pages.scripts.isEmpty());
        f.ready();
        f.engine.seedChatContext(u"   "_s);
        f.engine.seedChatContext(u" Week 47\n"_s);
        f.engine.setMuted(true);
        f.engine.setMuted(false);
        QCOMPARE(f.pages.scripts,
                 (QStringList{u"window.__nativeContext(\"Week 47\")"_s,
                              u"window.__nativeMute(true)"_s, u"window.__nativeMute(false)"_s}));
    }
};

QTEST_GUILESS_MAIN(EngineTest)
#include "EngineTest.moc"
