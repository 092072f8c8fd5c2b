// What the voice page's own script does, in a script engine with a made-up client.

#include "voice/VoicePageText.h"

#include <QJSEngine>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::voice;

namespace {

/// A browser as far as the page needs one. `answers` holds what comes of an attempt, by its
/// transport: "ok", "later" (by `pending`), or the message of what it throws.
const QString browser = uR"(
    var posts = [], starts = [], attempts = [], told = [], answers = {}, element = {}, pending = null;
    var window = this;
    window.webkit = { messageHandlers: { vcall: { postMessage: function (m) {
        var keys = Object.keys(m).filter(function (k) { return k !== 't' && k !== 'start'; });
        posts.push(m.t + ' ' + JSON.stringify(keys.map(function (k) { return m[k]; })));
        starts.push(m.start);
    } } } };
    var document = { createElement: function () { return element; }, head: { appendChild: function (e) {
        told.push(e.src);
    } } };
    var options = null;
    var client = { startSession: function (o) {
        options = o;
        attempts.push(o.connectionType + ' ' + (o.signedUrl || '') + (o.conversationToken || ''));
        var answer = answers[o.connectionType];
        var conversation = {
            sendContextualUpdate: function (text) { told.push('context ' + text); throw new Error('x'); },
            sendUserMessage: function (text) { told.push('say ' + text); },
            setMicMuted: function (m) { told.push('mute ' + JSON.stringify(m)); },
            endSession: function () { told.push('end ' + o.signedUrl); throw new Error('x'); }
        };
        return new Promise(function (resolve, reject) {
            if (answer === 'ok')
                resolve(conversation);
            else if (answer === 'later')
                pending = { comes: function () { resolve(conversation); }, fails: reject };
            else
                reject(answer === '' ? {} : new Error(answer));
        });
    } };
)"_s;

} // namespace

class PageTest : public QObject {
    Q_OBJECT

    struct Page {
        Page() {
            run(browser);
            run(VoicePageText::script());
            run(u"told.splice(0)"_s);
        }
        QJSValue run(const QString &script) {
            const QJSValue result = engine.evaluate(script);
            if (result.isError())
                QTest::qFail(qPrintable(result.toString()), __FILE__, __LINE__);
            // Promises, and what follows from them.
            for (int round = 0; round < 10; ++round)
                QCoreApplication::sendPostedEvents();
            return result;
        }
        QStringList list(const QString &name) { return run(name).toVariant().toStringList(); }
        void loadClient() { run(u"window.__ElevenConversation = client; element.onload()"_s); }
        void start(const QString &session, const QString &digest = {}) {
            run(u"window.__nativeStart(%1, %2)"_s.arg(VoicePageText::jsString(session),
                                                      VoicePageText::jsString(digest)));
        }
        QJSEngine engine;
    };

private Q_SLOTS:
    void loadingTheClient() {
        QVERIFY(VoicePageText::html().startsWith(
            u"<!doctype html><html><head><meta charset=\"utf-8\"></head><body><script>"_s));
        QVERIFY(VoicePageText::html().endsWith(u"</script></body></html>"_s));
        Page page;
        QCOMPARE(page.run(u"element.src"_s).toString(), u"/vendor/elevenlabs-client.1.21.0.js"_s);
        page.run(u"element.onerror(); element.onload()"_s);
        page.loadClient();
        QCOMPARE(page.list(u"posts"_s),
                 (QStringList{u"connectFail [\"SDK load failed\"]"_s,
                              u"connectFail [\"SDK loaded without a global\"]"_s, u"ready []"_s}));
    }

    /// What the backend, the chat and the devices are called is a text to the page, nothing else.
    void textsStayTexts_data() {
        QTest::addColumn<QString>("text");
        for (const QString &text :
             {u"\"); posts.push('broken out'); (\""_s, u"'; x; '"_s, u"\\\"); x; (\\\""_s,
              u"</script><script>x</script>"_s, u"<!-- <script>"_s, u"a\nb\r\u2028\u2029c"_s,
              u"${x} `x`"_s, u"]]>"_s, QString(QChar(0)) + QChar(0xd800), u"🚀 Ünï"_s})
            QTest::newRow(qPrintable(text.left(20))) << text;
    }
    void textsStayTexts() {
        QFETCH(QString, text);
        Page page;
        const QString literal = VoicePageText::jsString(text);
        QVERIFY(!literal.contains(u"</"_s));
        QCOMPARE(page.run(u"("_s + literal + u").length"_s).toInt(), text.size());
        if (!text.contains(QChar(0xd800)))
            QCOMPARE(page.run(literal).toString(), text);
        QCOMPARE(page.list(u"posts"_s), QStringList());
    }

    void transports_data() {
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("answers");
        QTest::addColumn<QStringList>("attempts");
        QTest::addColumn<QString>("post");
        const QString both = u"{\"signed_url\":\"wss://a\",\"token\":\"t\"}"_s;
        const QString socket = u"websocket wss://a"_s;
        const QString media = u"webrtc t"_s;
        QTest::newRow("socket first") << both << u"{websocket:'ok',webrtc:'ok'}"_s
                                      << QStringList{socket} << u"connected [\"websocket\"]"_s;
        QTest::newRow("then media") << both << u"{websocket:'no',webrtc:'ok'}"_s
                                    << QStringList{socket, media} << u"connected [\"webrtc\"]"_s;
        QTest::newRow("both fail") << both << u"{websocket:'no',webrtc:'neither'}"_s
                                   << QStringList{socket, media} << u"connectFail [\"neither\"]"_s;
        QTest::newRow("token alone") << u"{\"token\":\"t\"}"_s << u"{webrtc:'ok'}"_s
                                     << QStringList{media} << u"connected [\"webrtc\"]"_s;
        QTest::newRow("socket alone")
            << u"{\"signed_url\":\"wss://a\",\"token\":\"\"}"_s << u"{websocket:'no'}"_s
            << QStringList{socket} << u"connectFail [\"no\"]"_s;
        QTest::newRow("neither") << u"{}"_s << u"{}"_s << QStringList()
                                 << u"connectFail [\"no voice transport\"]"_s;
        QTest::newRow("no word why") << u"{\"token\":\"t\"}"_s << u"{webrtc:''}"_s
                                     << QStringList{media} << u"connectFail [\"\"]"_s;
    }
    void transports() {
        QFETCH(QString, session);
        QFETCH(QString, answers);
        Page page;
        page.loadClient();
        page.run(u"posts = []; answers = "_s + answers);
        page.start(session);
        QTEST(page.list(u"attempts"_s), "attempts");
        QFETCH(QString, post);
        QCOMPARE(page.list(u"posts"_s), QStringList{post});
    }

    void whatTheServiceIsTold_data() {
        QTest::addColumn<QString>("digest");
        QTest::addColumn<QString>("sent");
        const QString text = u"You: 😀 \"a/b\" \\ ё\nAgent: <b>"_s;
        QTest::newRow("as it is") << text << text;
        QTest::newRow("none") << QString() << QString();
        QTest::newRow("cut") << QString(1000, u'a') + QString(1000, u'b')
                             << QString(1000, u'a') + QString(600, u'b');
    }
    void whatTheServiceIsTold() {
        QFETCH(QString, digest);
        QFETCH(QString, sent);
        Page page;
        page.loadClient();
        page.run(u"answers = {websocket:'ok'}"_s);
        page.start(u"{\"signed_url\":\"w\",\"call_id\":\"c7\",\"overrides\":{\"tts\":1}}"_s,
                   digest);
        QCOMPARE(page.run(u"options.customLlmExtraBody.tamrix_call_id"_s).toString(), u"c7"_s);
        QCOMPARE(page.run(u"'chat_digest' in options.customLlmExtraBody"_s).toBool(),
                 !sent.isEmpty());
        QCOMPARE(page.run(u"options.customLlmExtraBody.chat_digest || ''"_s).toString(), sent);
        QCOMPARE(page.run(u"options.overrides.tts"_s).toInt(), 1);
        QVERIFY(page.run(u"options.dynamicVariables"_s).isUndefined());
    }

    void whatTheServiceTells_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<QString>("post");
        const auto row = [](const char *call, const char *post) {
            QTest::newRow(call) << QString::fromLatin1(call) << QString::fromLatin1(post);
        };
        row("onModeChange({mode:'speaking'})", R"(mode ["speaking"])");
        row("onModeChange({mode:'thinking'})", R"(mode ["listening"])");
        row("onMessage({message:'hi',source:'ai'})", R"(message ["hi","ai",""])");
        row("onMessage({message:null,type:'partial'})", R"(message ["","","partial"])");
        row("onMessage({message:0})", R"(message ["0","",""])");
        row("onPing({ping_ms:0,pingMs:7})", "ping [0]");
        row("onPing({ping_ms:null,pingMs:7})", "ping [7]");
        row("onPing(12)", "ping [12]");
        row("onError('lost')", R"(error ["lost"])");
        row("onError(new Error('lost'))", R"(error ["lost"])");
        row("onError(null)", R"(error [""])");
        row("onDisconnect({reason:'error',message:'m',closeCode:1006,closeReason:'r'})",
            R"(disconnect ["error","m",1006,"r"])");
        row("onDisconnect()", R"(disconnect ["","",0,""])");
    }
    void whatTheServiceTells() {
        QFETCH(QString, call);
        Page page;
        page.loadClient();
        page.run(u"answers = {websocket:'ok'}"_s);
        page.start(u"{\"signed_url\":\"w\"}"_s);
        page.run(u"posts = []; options."_s + call);
        QFETCH(QString, post);
        QCOMPARE(page.list(u"posts"_s), QStringList{post});
    }

    /// A first attempt that is still under way when the call is over, or another has begun.
    void staleAttempts_data() {
        QTest::addColumn<QString>("meanwhile");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QStringList>("told");
        const QString next = u"__nativeStart('{\"signed_url\":\"2\"}', '')"_s;
        const QString late = u"pending.comes()"_s;
        const QString fails = u"pending.fails(new Error('x'))"_s;
        const QString event = u"first.onDisconnect()"_s;
        QTest::newRow("connects after the end")
            << u"__nativeEnd()"_s << late << QStringList{u"end 1"_s};
        QTest::newRow("fails after the end") << u"__nativeEnd()"_s << fails << QStringList();
        QTest::newRow("connects beside another") << next << late << QStringList{u"end 1"_s};
        QTest::newRow("fails beside another") << next << fails << QStringList();
        QTest::newRow("tells of itself") << next << event << QStringList();
    }
    void staleAttempts() {
        QFETCH(QString, meanwhile);
        QFETCH(QString, outcome);
        QFETCH(QStringList, told);
        Page page;
        page.loadClient();
        page.run(u"answers = {websocket:'later',webrtc:'ok'}"_s);
        page.start(u"{\"signed_url\":\"1\",\"token\":\"t\"}"_s);
        page.run(u"var first = options; answers.websocket = 'ok'"_s);
        page.run(meanwhile);
        page.run(u"posts = []; attempts = []"_s);
        page.run(outcome);
        QCOMPARE(page.list(u"posts"_s), QStringList());
        QCOMPARE(page.list(u"attempts"_s), QStringList());
        // Whatever became of the first, the second is the one that is held.
        if (meanwhile != u"__nativeEnd()"_s)
            told.append(u"end 2"_s);
        page.run(u"__nativeEnd()"_s);
        QCOMPARE(page.list(u"told"_s), told);
    }

    void oneConversationAtATime() {
        Page page;
        page.loadClient();
        page.run(u"answers = {websocket:'ok'}"_s);
        page.run(u"__nativeContext('a'); __nativeMute(true); __nativeEnd()"_s);
        QCOMPARE(page.list(u"told"_s), QStringList());
        page.start(u"{\"signed_url\":\"w\"}"_s);
        page.run(u"__nativeContext('a'); __nativeSay('b'); __nativeMute(1); __nativeMute(0)"_s);
        page.start(u"{\"signed_url\":\"w\"}"_s);
        page.run(u"options.onError('x'); __nativeEnd(); __nativeEnd()"_s);
        QCOMPARE(page.run(u"JSON.stringify(starts)"_s).toString(), u"[null,1,2,2]"_s);
        QCOMPARE(page.list(u"told"_s), (QStringList{u"context a"_s, u"say b"_s, u"mute true"_s,
                                                    u"mute false"_s, u"end w"_s, u"end w"_s}));
        // A page that nobody listens to does not break.
        page.run(u"window.webkit = undefined; element.onload()"_s);
        QVERIFY(page.engine.evaluate(u"__nativeStart('no json', '')"_s).isError());
    }
};

QTEST_GUILESS_MAIN(PageTest)
#include "PageTest.moc"
