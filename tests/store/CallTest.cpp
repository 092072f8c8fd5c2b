// Placing a call and ending it: the button, what stands in the way, and that the backend is told.

#include "CallFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::CallFixture;

namespace {
const QString noTokens = u"Not enough tokens — top up in Billing to call."_s;
const QString noVoice = u"Voice is not configured on the server."_s;
const QString noProvider = u"Voice provider is unavailable right now."_s;
const QString unavailable = u"Voice call is unavailable right now."_s;
} // namespace

class CallTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hints_data() {
        QTest::addColumn<QByteArray>("capability");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("hint");
        const auto reason = [](const QByteArray &code) {
            return QByteArray(R"({"available":false,"reason":")" + code + R"("})");
        };
        QTest::newRow("no money") << reason("insufficient_balance") << 200 << noTokens;
        QTest::newRow("not set up") << reason("not_configured") << 200 << noVoice;
        QTest::newRow("another reason") << reason("voice_unavailable") << 200 << unavailable;
        QTest::newRow("no reason") << QByteArray(R"({"available":false})") << 200 << unavailable;
        QTest::newRow("no answer") << QByteArray(R"({"error":"oh"})") << 500 << unavailable;
    }
    void hints() {
        QFETCH(QByteArray, capability);
        QFETCH(int, status);
        QFETCH(QString, hint);
        CallFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(u"GET api/v2/voice/capability"_s, capability, status);
        f.call()->callAction();
        SOON_COMPARE(f.call()->callHint(), hint);
        QVERIFY(!f.call()->call());
        QCOMPARE(f.pages.made, 0); // no web engine for nothing
        QCOMPARE(f.backend.count(f.session), 0);
        // What stood in the way is gone.
        f.backend.answer(u"GET api/v2/voice/capability"_s, R"({"available":true})");
        QVERIFY(f.connect());
    }

    void withoutAMicrophone() {
        CallFixture f;
        QVERIFY(f.signIn());
        f.microphones.opens = false;
        f.call()->callAction();
        QCOMPARE(f.call()->callHint(),
                 u"This Mac cannot make voice calls — check microphone access."_s);
        QCOMPARE(f.call()->voiceReason(), u"browser_unsupported"_s);
        f.settled();
        QCOMPARE(f.backend.count(u"GET api/v2/voice/capability"_s) + f.backend.count(f.session), 0);
        f.microphones.opens = true;
        f.pages.refused = u"Not for root."_s;
        f.call()->callAction();
        SOON_COMPARE(f.call()->callHint(), u"Not for root."_s);
        QCOMPARE(f.backend.count(f.session), 0);
    }

    void signedOut() {
        CallFixture f;
        QVERIFY(f.bootSignedOut());
        f.call()->callAction();
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
        QVERIFY(!f.call()->call());
    }

    void connecting() {
        CallFixture f;
        f.history(test::kivChat, "[" + test::rowJson(4, u"user"_s, u"Hello\n there"_s) + "]");
        QVERIFY(f.signIn());
        f.backend.hold(f.session);
        f.call()->callAction();
        SOON_VERIFY(f.call()->call() && f.pages.loads == 1);
        QVERIFY(f.call()->callShown());
        QCOMPARE(f.call()->callPhase(), CallPhase::Connecting);
        f.store->microphone()->choose(u"headset"_s);
        QCOMPARE(f.call()->callName(), u"KIV"_s);
        QCOMPARE(f.pages.baseUrl.toString(), f.backend.url().toString() + u'/');
        f.backend.release(f.session);
        f.ready();
        SOON_COMPARE(f.pages.calls(u"Start"_s).size(), 1);
        QCOMPARE(f.backend.requests(f.session).last().body.value(u"agent_id"_s), u"kiv"_s);
        QVERIFY2(f.pages.scripts.last().contains(u"\\/\\/voice.example"_s) &&
                     f.pages.scripts.last().endsWith(u"\"You: Hello there\")"_s),
                 qPrintable(f.pages.scripts.last()));
        f.connected();
        QCOMPARE(f.call()->callPhase(), CallPhase::Active);
        QCOMPARE(f.call()->callMax(), 600);
        QCOMPARE(f.pages.microphone, u"Headset"_s);
        QCOMPARE(f.microphones.openId, u"headset"_s); // its level shows
        QCOMPARE(f.pages.calls(u"Context"_s),
                 QStringList{u"window.__nativeContext(\"Recent text chat with the owner — use it "
                             "as memory, do not read it aloud:\\nYou: Hello there\")"_s});
        // The call keeps its name and its place when the person goes elsewhere, by a link here.
        f.store->door()->open(*ChatLink::parse(u"kiv://chat/agent/scout"_s));
        QCOMPARE(f.store->scope()->agent(), u"scout"_s);
        QVERIFY(!f.call()->callShown());
        QCOMPARE(f.call()->callName(), u"KIV"_s);
        f.call()->callAction();
        QVERIFY(f.call()->callShown());
        QCOMPARE(f.backend.count(f.session), 1);
        f.call()->hangupCall();
        QVERIFY(f.microphones.openId.isNull());
        QVERIFY(f.ended(1));
        QCOMPARE(f.backend.requests(f.end).last().body.value(u"call_id"_s), u"c1"_s);
    }

    void failures_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("note");
        const auto row = [](const char *code, const char *message, const QString &note) {
            QTest::addRow("%s %s", code, message)
                << QString::fromLatin1(code) << QString::fromLatin1(message) << note;
        };
        row("insufficient_balance", "no", noTokens);
        row("call_in_progress", "no", u"A call is already in progress."_s);
        row("voice_unavailable", "no", noVoice);
        row("token_mint_failed", "denied", noProvider);
        row("byok_voice_setup_failed", "no", noProvider);
        row("odd", "Permission to be odd", u"Permission to be odd"_s);
        row("odd", "The RATE Limit is reached", u"Too many calls — try again in a minute."_s);
        row("", "You are not allowed in", u"Microphone access denied"_s);
        row("", "Rate limit", u"Rate limit"_s);
    }
    void failures() {
        QFETCH(QString, code);
        QFETCH(QString, message);
        QFETCH(QString, note);
        CallFixture f;
        QVERIFY(f.signIn());
        QJsonObject body{{u"error"_s, message}};
        if (!code.isEmpty())
            body.insert(u"code"_s, code);
        f.backend.answer(f.session, QJsonDocument(body).toJson(), 409);
        f.call()->callAction();
        SOON_COMPARE(f.call()->callHint(), note);
        QVERIFY(!f.call()->call() && !f.call()->callShown());
        QVERIFY(f.ended(0));
    }

    void failuresOfTheLine_data() {
        QTest::addColumn<QString>("message"); // "late": no answer; "page", "load": no page
        QTest::addColumn<QString>("note");
        QTest::newRow("client") << u"no voice transport"_s << u"no voice transport"_s;
        QTest::newRow("no word") << QString() << u"Could not connect the call"_s;
        QTest::newRow("microphone")
            << u"NotAllowedError: Permission denied"_s << u"Microphone access denied"_s;
        QTest::newRow("late") << u"late"_s << u"voice connect timeout"_s;
        QTest::newRow("page") << u"page"_s << u"Voice engine is not ready"_s;
        QTest::newRow("load") << u"load"_s << u"Could not load the voice engine"_s;
    }
    void failuresOfTheLine() {
        QFETCH(QString, message);
        QFETCH(QString, note);
        CallFixture f;
        QVERIFY(f.signIn());
        f.pages.available = message != u"page"_s;
        if (message == u"page"_s || message == u"load"_s) {
            f.call()->callAction();
            SOON_VERIFY(f.backend.count(f.session) == 1);
            SOON_VERIFY(f.clock.nextDue() == 25s || !f.call()->callHint().isEmpty());
            f.clock.advance(25s);
        } else {
            QVERIFY(f.dial());
            f.clock.advance(24s);
            QVERIFY(f.call()->call());
            if (message == u"late"_s)
                f.clock.advance(1s);
            else
                f.connectFail(message);
        }
        QCOMPARE(f.call()->callHint(), note);
        QVERIFY(!f.call()->call());
        QVERIFY(f.ended(1));
        // Too late is never: the line is torn down, and the next call has its own.
        if (message == u"late"_s) {
            f.connected();
            QCOMPARE(f.pages.scripts.last(), u"window.__nativeEnd()"_s);
            QVERIFY(!f.call()->call());
        }
    }

    void theEndIsToldOnce_data() {
        QTest::addColumn<QString>("when");
        for (const char *when : {"minting", "loading", "connecting", "active", "ending", "sign-out",
                                 "page dies", "quit"})
            QTest::newRow(when) << QString::fromLatin1(when);
    }
    void theEndIsToldOnce() {
        QFETCH(QString, when);
        CallFixture f;
        QVERIFY(f.signIn());
        if (when == u"minting"_s) {
            f.backend.hold(f.session);
            f.call()->callAction();
            SOON_COMPARE(f.backend.count(f.session), 1);
            f.call()->hangupCall();
            QVERIFY(!f.call()->call());
            f.backend.release(f.session);
        } else if (when == u"loading"_s) {
            f.call()->callAction();
            SOON_VERIFY(f.clock.nextDue() == 25s);
            f.call()->hangupCall();
        } else if (when == u"connecting"_s) {
            QVERIFY(f.dial());
            f.call()->hangupCall();
            f.connected();
            QCOMPARE(f.pages.calls(u"End"_s).size(), 2);
        } else {
            QVERIFY(f.connect());
            f.backend.hold(f.end);
            if (when == u"page dies"_s) {
                f.pages.die();
                SOON_COMPARE(f.call()->callPhase(), CallPhase::Ending);
                QVERIFY(!f.call()->callError().isEmpty());
            } else if (when == u"sign-out"_s) {
                f.store->session()->logout();
                QVERIFY(!f.call()->call());
                // While the session still counts.
                QCOMPARE(f.backend.count(u"POST api/v2/auth/logout"_s), 0);
            } else if (when == u"quit"_s) {
                f.call()->leaveCall();
            } else {
                f.call()->hangupCall();
                f.drop(u"user"_s);
                if (when == u"ending"_s) {
                    QVERIFY(f.call()->call());
                    f.call()->hangupCall(); // has seen enough of it
                }
            }
            SOON_COMPARE(f.backend.count(f.end), 1);
            f.backend.release(f.end);
        }
        QVERIFY(f.ended(1));
        QVERIFY(!f.pages.calls(u"End"_s).isEmpty() || when == u"page dies"_s ||
                when == u"minting"_s);
        f.clock.advance(5s);
        QVERIFY(!f.call()->call());
        QCOMPARE(f.backend.count(f.end), 1);
        if (when == u"sign-out"_s) {
            SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
            QCOMPARE(f.call()->voiceAvailable(), std::nullopt);
            return;
        }
        // The next call is a call like any other; after a dead page on a fresh one.
        f.pages.scripts.clear();
        f.pages.loads = when == u"page dies"_s ? 0 : 1;
        QVERIFY(f.connect());
        QCOMPARE(f.pages.made, when == u"page dies"_s ? 2 : 1);
    }

    void sharing_data() {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("path");
        QTest::newRow("a project") << u"ferry"_s << u"/project/ferry"_s;
        QTest::newRow("everything") << QString() << QString();
    }
    void sharing() {
        QFETCH(QString, project);
        QFETCH(QString, path);
        CallFixture f;
        QVERIFY(f.signIn());
        if (!project.isEmpty())
            f.store->scope()->enterProject(project);
        QVERIFY(f.connect());
        f.store->scope()->enterProject(u"lantern"_s);
        QString link;
        connect(f.call(), &CallRoom::callLinkShared, this, [&](const QString &to) { link = to; });
        f.call()->callShare();
        QCOMPARE(link, f.backend.url().toString() + path);
        QCOMPARE(f.call()->callHint(), u"Canvas link copied · anyone on the project can open it"_s);
    }
};

QTEST_GUILESS_MAIN(CallTest)
#include "CallTest.moc"
