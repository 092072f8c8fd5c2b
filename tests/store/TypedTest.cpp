// What a person typed is never lost, whatever happens to the session, the scope or the history.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::kivChat;
using test::kivGreeting;
using test::kivPost;
using test::rowJson;
using test::StoreFixture;

namespace {

/// Sends a message that the backend does not take; true once the message says so.
bool sendInVain(StoreFixture &f, const QString &text) {
    const int row = f.msgs().count();
    f.backend.answer(kivPost, "{}", 500);
    f.store->chat()->send(text);
    return test::soon([&] { return f.deliveryOf(row) == Delivery::Failed; });
}

} // namespace

class TypedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void expiredSessionGivesTheTextBack() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"error":"Signed out"})", 401);
        f.store->chat()->send(u"a long thought"_s);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
        QCOMPARE(f.store->chat()->draft(), QString());

        // Not to somebody else …
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"eve@example.org"})");
        f.store->session()->submitAuth(u"eve@example.org"_s, u"12345678"_s, false);
        SOON_VERIFY(f.store->scope()->chatTarget());
        SOON_COMPARE(f.texts(), QStringList{kivGreeting});
        QCOMPARE(f.store->chat()->draft(), QString());
        f.store->session()->resetToAnon();

        // … but to the one who typed it.
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"ada@example.org"})");
        f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(f.store->chat()->draft(), u"a long thought"_s);
    }

    void expiredSessionFindsEveryText() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"error":"Signed out"})", 401);
        f.backend.hold(kivPost);
        f.store->chat()->send(u"first"_s);
        f.clock.advance(1s);
        f.store->chat()->send(u"second"_s);
        SOON_COMPARE(f.backend.count(kivPost), 2);
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_COMPARE(f.msgs().count(), 1);
        f.store->chat()->setDraft(u"third"_s);
        f.backend.release(kivPost);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.store->chat()->lastPrompt(), QString());

        f.store->chat()->setDraft(u"typed while signed out"_s);
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"ada@example.org"})");
        f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(f.store->chat()->draft(), u"third\ntyped while signed out"_s);
        f.store->scope()->pickGlobal();
        QCOMPARE(f.store->chat()->draft(), u"first\nsecond"_s);
    }

    void typedTextStays() {
        StoreFixture f;
        const QString orchestrator = u"GET api/v2/orchestrator"_s;
        f.backend.hold(orchestrator);
        f.store->boot();
        SOON_COMPARE(f.backend.count(orchestrator), 1);
        f.store->chat()->setDraft(u"early"_s);
        f.store->chat()->send(u"early"_s); // nobody knows yet whom this asks
        QCOMPARE(f.store->chat()->draft(), u"early"_s);
        QVERIFY(!f.texts().contains(u"early"_s));

        // A project can be asked before KIV is found, and finding it does not end that turn.
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_VERIFY(f.backend.isStreaming(test::ferryChat + u"/stream"_s));
        f.store->chat()->send(u"early"_s);
        QCOMPARE(f.store->chat()->draft(), QString());
        f.backend.answer(orchestrator, R"({"agent_id":"kiv"})");
        f.backend.release(orchestrator);
        SOON_COMPARE(f.backend.count(u"GET api/v2/user/profile"_s), 1);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);

        f.store->chat()->setDraft(u"half a thought"_s);
        f.store->canvas()->refinePoint(u"Tasks"_s);
        QCOMPARE(f.texts().last(), u"Tell me about Tasks"_s);
        QCOMPARE(f.store->chat()->draft(), u"half a thought"_s);
    }

    void unsentKeepsItsPlace() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"one"_s) + "," +
                               rowJson(2, u"assistant"_s, u"two"_s) + "]");
        QVERIFY(f.signIn());
        QVERIFY(sendInVain(f, u"lost?"_s));
        const QByteArray later = "[" + rowJson(1, u"user"_s, u"one"_s) + "," +
                                 rowJson(2, u"assistant"_s, u"two"_s) + "," +
                                 rowJson(3, u"user"_s, u"from the phone"_s) + "]";
        const QStringList expected{u"one"_s, u"two"_s, u"lost?"_s, u"from the phone"_s};

        f.history(kivChat, later);
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), expected);

        // Also after a visit elsewhere; there it does not show.
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_COMPARE(f.msgs().count(), 1);
        QVERIFY(!f.texts().contains(u"lost?"_s));
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), expected);

        // And a new chat only puts it out of sight.
        f.store->chat()->newChat();
        QCOMPARE(f.texts(), QStringList{kivGreeting});
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), expected);
    }

    void unsentOfTwoVisits() {
        StoreFixture f;
        QVERIFY(f.signIn());
        QVERIFY(sendInVain(f, u"one"_s));
        f.store->scope()->enterProject(u"ferry"_s);
        f.backend.hold(u"GET "_s + kivChat);
        f.store->scope()->pickGlobal();
        f.store->chat()->send(u"two"_s);
        SOON_COMPARE(f.backend.count(kivPost), 2);
        f.store->scope()->enterProject(u"ferry"_s);
        f.backend.release(u"GET "_s + kivChat);
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"from the phone"_s) + "]");
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), (QStringList{u"one"_s, u"from the phone"_s, u"two"_s}));
    }

    void sameWordsAgain() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"hello"_s) + "]");
        QVERIFY(f.signIn());
        QVERIFY(sendInVain(f, u"hello"_s));
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_COMPARE(f.msgs().count(), 1);
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.msgs().count(), 2);
        QCOMPARE(f.deliveryOf(1), Delivery::Failed);
    }

    void askedBeforeThePage() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->scope()->enterProject(u"ferry"_s);
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"new"_s) + "}");
        f.history(kivChat, "[" + rowJson(1, u"user"_s, u"old"_s) + "," +
                               rowJson(2, u"assistant"_s, u"old answer"_s) + "]");
        f.backend.hold(u"GET "_s + kivChat);
        f.store->scope()->pickGlobal();
        f.store->chat()->send(u"new"_s);
        SOON_VERIFY(f.msgs().rowOfServerID(7) >= 0);
        f.backend.release(u"GET "_s + kivChat);
        QVERIFY(f.streaming(kivChat, 2));
        QCOMPARE(f.texts(), (QStringList{u"old"_s, u"old answer"_s, u"new"_s}));
        // What stood there before the question is not its answer.
        f.row(2, u"old answer, "_s + test::reportBlock);
        SOON_VERIFY(f.msgs().messages().at(1).text.startsWith(u"old answer,"_s));
        f.clock.advance(5s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
        QVERIFY(f.reconnect(kivChat));
        f.clock.advance(5s);
        QCOMPARE(f.store->canvas()->phase(), Phase::Thinking);
    }

    /// The reply is lost, the row comes with the page, and one of the clocks is wrong.
    void storedFormIsFoundByItsPlace() {
        StoreFixture f;
        f.history(kivChat, "[" + rowJson(1, u"assistant"_s, u"hello"_s) + "]");
        QVERIFY(f.signIn());
        f.clock.advance(9h);
        QVERIFY(sendInVain(f, u"hello"_s));
        f.history(kivChat, "[" + rowJson(1, u"assistant"_s, u"hello"_s) + "," +
                               rowJson(2, u"user"_s, u"hello"_s) + "]");
        f.store->chat()->refresh();
        SOON_COMPARE(f.deliveryOf(1), Delivery::Stored);
        QCOMPARE(f.msgs().count(), 2);
    }

    void unsentAtTheEnd() {
        StoreFixture f;
        QVERIFY(f.signIn());
        QVERIFY(sendInVain(f, u"failed"_s));
        f.connectivity.setOnline(false);
        f.store->chat()->send(u"waiting"_s);
        f.store->chat()->setDraft(u"typed"_s);
        f.store->scope()->enterProject(u"ferry"_s);
        f.connectivity.setOnline(true);
        f.restart();
        QVERIFY(f.signIn());
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.store->chat()->draft(), u"failed\nwaiting\ntyped"_s);
    }

    void sentWhileLeaving() {
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(kivPost, R"({"message":)" + rowJson(7, u"user"_s, u"hello"_s) + "}");
        f.backend.hold(kivPost);
        f.store->chat()->send(u"hello"_s);
        SOON_COMPARE(f.backend.count(kivPost), 1);
        f.store->scope()->enterProject(u"ferry"_s);
        SOON_COMPARE(f.msgs().count(), 1);
        f.backend.release(kivPost);
        f.history(kivChat, "[" + rowJson(7, u"user"_s, u"hello"_s) + "]");
        QTest::qWait(20);
        f.store->scope()->pickGlobal();
        SOON_COMPARE(f.texts(), QStringList{u"hello"_s});
        QCOMPARE(f.deliveryOf(0), Delivery::Stored);
    }
};

QTEST_GUILESS_MAIN(TypedTest)
#include "TypedTest.moc"
