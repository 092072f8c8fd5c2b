// Signing in, up and out.

#include "StoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using test::StoreFixture;

namespace {
const QString signedOut =
    u"Sign in to talk to your agents, projects and KIV — everything here is real."_s;
}

class SessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusedBeforeAsking_data() {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("password");
        QTest::addColumn<AuthField>("field");
        QTest::newRow("short password")
            << u"ada@example.org"_s << u"1234567"_s << AuthField::Password;
        QTest::newRow("four characters of two units each")
            << u"ada@example.org"_s << u"🔑🔑🔑🔑"_s << AuthField::Password;
        QTest::newRow("blank address") << u" \n\t"_s << u"12345678"_s << AuthField::Email;
    }
    void refusedBeforeAsking() {
        QFETCH(QString, email);
        QFETCH(QString, password);
        StoreFixture f;
        f.store->session()->submitAuth(email, password, false);
        QCOMPARE(f.store->session()->authError(),
                 u"Enter a valid email and a password of at least 8 characters."_s);
        QTEST(f.store->session()->errorField(), "field");
        QVERIFY(!f.store->session()->busy());
        f.settled();
        QCOMPARE(f.backend.count(u"POST api/v2/auth/login"_s), 0);
    }

    void signingIn_data() {
        QTest::addColumn<bool>("signup");
        QTest::addColumn<QString>("route");
        QTest::newRow("in") << false << u"POST api/v2/auth/login"_s;
        QTest::newRow("up") << true << u"POST api/v2/auth/signup"_s;
    }
    void signingIn() {
        QFETCH(bool, signup);
        QFETCH(QString, route);
        StoreFixture f;
        QVERIFY(f.bootSignedOut());
        SessionRoom *session = f.store->session();
        session->openAuthSheet(AuthSheetMode::Login);

        f.backend.answer(route, R"({"error":"That password is not right."})", 401);
        session->submitAuth(u"  ada@example.org "_s, u"12345678"_s, signup);
        QVERIFY(session->busy());
        SOON_COMPARE(session->authError(), u"That password is not right."_s);
        QVERIFY(!session->busy());
        QCOMPARE(session->authSheet(), AuthSheetMode::Login);

        f.backend.answer(route, R"({"user":{"email":"ada@example.org","name":"Ada"}})");
        session->submitAuth(u"ada@example.org"_s, u"12345678"_s, signup);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::SignedIn);
        QCOMPARE(session->authSheet(), AuthSheetMode::Closed);
        QCOMPARE(session->authError(), QString());
        const QJsonObject body = f.backend.requests(route).last().body;
        QCOMPARE(body.value(u"email"_s).toString(), u"ada@example.org"_s);
        QCOMPARE(body.contains(u"time_zone"_s), signup);
        SOON_COMPARE(f.store->scope()->projects().size(), 2);
    }

    void signingInWhileTheCheckRuns() {
        StoreFixture f;
        const QString check = u"GET api/v2/auth/me"_s;
        f.backend.answer(check, R"({"error":"Not signed in"})", 401);
        f.backend.hold(check);
        f.store->boot();
        // Nobody is called signed out before the check says so.
        QVERIFY(f.store->canvas()->state() != CanvasState::SignedOut);
        SessionRoom *session = f.store->session();
        session->openAuthSheet(AuthSheetMode::Login);
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"error":"No."})", 401);
        session->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(session->authError(), u"No."_s);
        session->closeAuthSheet();
        f.backend.release(check);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.store->canvas()->state(), CanvasState::SignedOut);
    }

    /// It counts when the sign-in that was under way then does not succeed.
    void sessionIsFoundDuringASignIn() {
        const QString check = u"GET api/v2/auth/me"_s;
        const QString login = u"POST api/v2/auth/login"_s;
        StoreFixture f;
        f.backend.hold(check);
        f.backend.answer(login, R"({"error":"No."})", 401);
        f.backend.hold(login);
        f.store->boot();
        f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(f.backend.count(login), 1);
        f.backend.release(check);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        f.backend.release(login);
        SOON_COMPARE(f.store->session()->authError(), u"No."_s);
        f.clock.advance(2s);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::SignedIn);
    }

    /// Who has a session need not sign in because the network came later than the program.
    void startedBeforeTheNetwork() {
        StoreFixture f;
        const QString check = u"GET api/v2/auth/me"_s;
        f.backend.answer(check, "<html>", 502);
        f.store->boot();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        f.store->session()->openAuthSheet(AuthSheetMode::Login);
        f.backend.answer(check, R"({"email":"ada@example.org"})");
        f.clock.advance(2s);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::SignedIn);
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Closed);
    }

    void unreadableReply() {
        StoreFixture f;
        QVERIFY(f.bootSignedOut());
        f.backend.answer(u"POST api/v2/auth/login"_s, "<html>");
        f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_VERIFY(!f.store->session()->authError().isEmpty());
        QCOMPARE(f.store->scope()->auth(), AuthPhase::Anon);
    }

    void signedOutActionsOpenTheSheet() {
        StoreFixture f;
        f.store->chat()->setDraft(u"hello"_s);
        // Nobody knows yet who is there.
        f.store->chat()->send(u"hello"_s);
        f.store->layout()->openAccount();
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Closed);
        QCOMPARE(f.store->layout()->account(), QString());
        QVERIFY(f.bootSignedOut());
        f.store->layout()->toggleHist();
        f.store->chat()->send(u"hello"_s);
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
        QVERIFY(!f.store->layout()->histOpen());
        QCOMPARE(f.texts(), QStringList{signedOut});
        QCOMPARE(f.store->chat()->draft(), u"hello"_s);
    }

    void signingOutForgetsTheUser_data() {
        QTest::addColumn<int>("status");
        QTest::newRow("revoked") << 200;
        QTest::newRow("server fails") << 500;
    }
    void signingOutForgetsTheUser() {
        QFETCH(int, status);
        StoreFixture f;
        f.backend.answer(u"POST api/v2/auth/logout"_s, "{}", status);
        QVERIFY(f.ask(u"Weekly report"_s));
        QVERIFY(f.draw(9, test::reportBlock));
        f.client->cookies().setCookiesFromUrl({QNetworkCookie("session", "s")},
                                              f.client->baseUrl());
        CanvasRoom *canvas = f.store->canvas();
        QCOMPARE(canvas->state(), CanvasState::Scene);
        f.store->chat()->setDraft(u"half a thought"_s);
        const int gen = f.store->chat()->chatGen();
        f.backend.hold(u"GET "_s + test::kivChat);
        f.store->scope()->pickGlobal();
        f.store->session()->logout();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.texts(), QStringList{signedOut});
        QVERIFY(!f.store->chat()->historyLoading());
        QVERIFY(f.store->scope()->projects().isEmpty());
        QVERIFY(f.store->scope()->userEmail().isEmpty());
        QVERIFY(f.store->scope()->kivID().isEmpty());
        QCOMPARE(canvas->state(), CanvasState::SignedOut);
        QCOMPARE(canvas->art() + canvas->query(), QString());
        QCOMPARE(canvas->history()->count(), 0);
        QVERIFY(!canvas->hasEarlier());
        // It is not sent again, whether or not the server has taken it back.
        QVERIFY(f.client->cookies().cookiesForUrl(f.client->baseUrl()).isEmpty());
        // A row of the old session comes too late.
        net::ChatRow late;
        late.role = u"assistant"_s;
        late.content = u"late"_s;
        f.store->chat()->onLiveInsert(gen, late);
        QCOMPARE(f.texts(), QStringList{signedOut});
        // So it does for who signs in next.
        f.history(test::kivChat, "[" + test::rowJson(1, u"assistant"_s, u"Hello"_s) + "]");
        f.backend.release(u"GET "_s + test::kivChat);
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"grace@example.org"})");
        f.store->session()->submitAuth(u"grace@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(f.texts(), QStringList{u"Hello"_s});
        f.store->chat()->onLiveInsert(gen, late);
        QCOMPARE(f.texts(), QStringList{u"Hello"_s});
    }

    void sampleWorkspace() {
        StoreFixture f;
        QVERIFY(f.bootSignedOut());
        QVERIFY(!f.store->session()->sampleOffered());
        f.store->session()->offerSample({u"sample@example.org"_s, u"long enough"_s});
        f.backend.answer(u"POST api/v2/auth/login"_s, R"({"email":"sample@example.org"})");
        f.store->session()->trySample();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::SignedIn);
        QCOMPARE(f.store->scope()->userName(), u"sample@example.org"_s);
    }

    /// A sign-out that comes late ends the session behind the back of who has just been let in. One
    /// refusal alone ends nothing.
    void endsWhileTheWorkspaceLoads_data() {
        QTest::addColumn<int>("status"); // of the question who is signed in
        QTest::addColumn<AuthPhase>("phase");
        QTest::newRow("ended") << 401 << AuthPhase::Anon;
        QTest::newRow("refused once") << 200 << AuthPhase::SignedIn;
    }
    void endsWhileTheWorkspaceLoads() {
        QFETCH(int, status);
        QFETCH(AuthPhase, phase);
        const QString me = u"GET api/v2/auth/me"_s;
        const QString projects = u"GET api/v2/projects"_s;
        StoreFixture f;
        f.backend.answer(projects, R"({"error":"Signed out"})", 401);
        f.backend.hold(projects);
        f.store->boot();
        SOON_COMPARE(f.backend.count(projects), 1);
        f.backend.answer(me, status == 200 ? R"({"id":"ada","email":"ada@example.org"})" : "{}",
                         status);
        f.backend.release(projects);
        SOON_COMPARE(f.backend.count(me), 2);
        SOON_COMPARE(f.store->scope()->auth(), phase);
        SOON_COMPARE(f.store->session()->authSheet(),
                     status == 401 ? AuthSheetMode::Login : AuthSheetMode::Closed);
        QCOMPARE(f.backend.count(projects), 1);
    }

    /// The stream of a chat is refused while everything else is not asked for.
    void endsBehindALine_data() { endsWhileTheWorkspaceLoads_data(); }
    void endsBehindALine() {
        QFETCH(int, status);
        QFETCH(AuthPhase, phase);
        const QString me = u"GET api/v2/auth/me"_s;
        const QString stream = u"GET "_s + test::kivChat + u"/stream"_s;
        StoreFixture f;
        QVERIFY(f.signIn());
        f.store->chat()->setDraft(u"half a question"_s);
        f.backend.answer(stream, R"({"error":"Signed out"})", 401);
        if (status == 401)
            f.backend.answer(me, R"({"error":"Signed out"})", 401);
        QVERIFY(f.loseLine(test::kivChat, me));
        QCOMPARE(f.backend.count(me), 2);
        SOON_COMPARE(f.store->scope()->auth(), phase);
        SOON_COMPARE(f.store->session()->authSheet(),
                     status == 401 ? AuthSheetMode::Login : AuthSheetMode::Closed);
        if (phase == AuthPhase::Anon) {
            QVERIFY(!f.store->chatStream().running());
            return;
        }
        // Refused again, it is asked for later.
        SOON_COMPARE(f.clock.nextDue(), 2s);
        f.clock.advance(2s);
        SOON_COMPARE(f.clock.nextDue(), 4s);
        f.history(test::kivChat, "[" + test::rowJson(8, u"assistant"_s, u"missed"_s) + "]");
        f.backend.release(stream);
        f.clock.advance(4s);
        SOON_COMPARE(f.texts(), QStringList{u"missed"_s});
        QCOMPARE(f.store->chat()->draft(), u"half a question"_s);
    }

    /// The session is over before the reply to the sign-out is here, and the stream notices.
    void signingOutTakesLong() {
        const QString me = u"GET api/v2/auth/me"_s;
        const QString logout = u"POST api/v2/auth/logout"_s;
        StoreFixture f;
        QVERIFY(f.signIn());
        f.backend.answer(logout, "{}");
        f.backend.hold(logout);
        f.store->session()->logout();
        SOON_COMPARE(f.backend.count(logout), 1);
        f.backend.answer(me, "{}", 401);
        f.backend.answer(u"GET "_s + test::kivChat + u"/stream"_s, "{}", 401);
        QVERIFY(f.loseLine(test::kivChat, me));
        QCOMPARE(f.backend.count(me), 2);
        f.settled();
        QCOMPARE(f.store->scope()->auth(), AuthPhase::SignedIn);
        f.backend.release(logout);
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Closed);
    }

    void goneInTheMiddle() {
        StoreFixture f;
        QVERIFY(f.bootSignedOut());
        f.backend.hold(u"POST api/v2/auth/login"_s);
        f.store->session()->submitAuth(u"ada@example.org"_s, u"12345678"_s, false);
        SOON_COMPARE(f.backend.count(u"POST api/v2/auth/login"_s), 1);
        f.store.reset();
        f.backend.release(u"POST api/v2/auth/login"_s);
        f.settled();
    }
};

QTEST_GUILESS_MAIN(SessionTest)
#include "SessionTest.moc"
