#include "ui/GalleryTest.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

namespace {

const QString login = u"POST api/v2/auth/login"_s;
const QString signup = u"POST api/v2/auth/signup"_s;
const QByteArray ada = R"({"user":{"id":"u1","email":"ada@example.org","name":"Ada Byron"}})";

} // namespace

/// The sign-in sheet, and signing out, by real keys.
class SignInTest : public GalleryTest {
    Q_OBJECT

private Q_SLOTS:
    void signUp();
    void errorGoesToItsField_data();
    void errorGoesToItsField();
    void busy();
    void typedValuesStay();
    void passwordCanBeRead();
    void languageBesideTheForm();
    void signOutDuringAnAnswer();

private:
    void openSheet(Qt::KeyboardModifiers modifiers = Qt::ControlModifier);
    QString text(const QString &field) const {
        return m_gallery->item(field)->property("text").toString();
    }
    store::SessionRoom &session() { return *m_workspace->store->session(); }
};

void SignInTest::openSheet(Qt::KeyboardModifiers modifiers) {
    QVERIFY(m_workspace->bootSignedOut());
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->press(Qt::Key_L, modifiers);
    QTRY_VERIFY(m_gallery->hasFocus(u"emailField"_s));
}

void SignInTest::signUp() {
    m_workspace->backend.answer(signup, ada);
    QVERIFY(m_workspace->bootSignedOut());
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->click(u"signInButton"_s);
    m_gallery->click(u"switchAuthMode"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"emailField"_s));
    m_gallery->type(u"ada@example.org"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->type(u"seven77"_s);
    m_gallery->press(Qt::Key_Return);
    QCOMPARE(text(u"authError"_s),
             u"Enter a valid email and a password of at least 8 characters."_s);
    QVERIFY(m_gallery->hasFocus(u"passwordField"_s));
    QCOMPARE(m_workspace->backend.count(signup), 0);
    m_gallery->type(u"8"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::SignedIn);
    const QJsonObject body = m_workspace->backend.requests(signup).first().body;
    QCOMPARE(body.value(u"password"_s).toString(), u"seven778"_s);
    QTRY_VERIFY(!m_gallery->find(u"emailField"_s));
    // What had the keys before, the button to sign in, has gone.
    QTRY_VERIFY(m_gallery->hasFocus(u"askField"_s));
}

void SignInTest::errorGoesToItsField_data() {
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QString>("focused");
    const QString email = u"emailField"_s;
    const QString password = u"passwordField"_s;
    QTest::newRow("wrong password") << "{}"_ba << 401 << false << password;
    QTest::newRow("taken address") << R"({"error":"Taken."})"_ba << 409 << true << email;
    QTest::newRow("server fails") << R"({"error":"Down."})"_ba << 503 << true << password;
}

void SignInTest::errorGoesToItsField() {
    QFETCH(QByteArray, reply);
    QFETCH(int, status);
    QFETCH(bool, up);
    QFETCH(QString, focused);
    m_workspace->backend.answer(up ? signup : login, reply, status);
    openSheet(up ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
    m_gallery->type(u"ada@example.org"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->type(u"difference engine"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_VERIFY(m_gallery->find(u"authError"_s));
    QTRY_VERIFY(m_gallery->hasFocus(focused));
    QCOMPARE(text(u"emailField"_s), u"ada@example.org"_s);
    QCOMPARE(text(u"passwordField"_s), u"difference engine"_s);
}

void SignInTest::busy() {
    m_workspace->backend.answer(login, ada);
    m_workspace->backend.hold(login);
    openSheet();
    const double width = m_gallery->item(u"submitAuth"_s)->width();
    m_gallery->type(u"ada@example.org"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->type(u"difference engine"_s);
    m_gallery->press(Qt::Key_Return);
    QVERIFY(session().busy());
    m_gallery->save(u"sign-in-busy"_s);
    QCOMPARE(m_gallery->item(u"submitAuth"_s)->width(), width);
    QVERIFY(!m_gallery->item(u"emailField"_s)->isEnabled());
    m_gallery->click(u"submitAuth"_s);
    m_gallery->click(u"switchAuthMode"_s);
    QCOMPARE(session().authSheet(), store::AuthSheetMode::Login);
    m_workspace->backend.release(login);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::SignedIn);
    QCOMPARE(m_workspace->backend.count(login), 1);
}

void SignInTest::typedValuesStay() {
    m_workspace->backend.answer(login, ada);
    openSheet();
    m_gallery->type(u"ada@example.org"_s);
    m_gallery->press(Qt::Key_Tab);
    m_gallery->type(u"difference"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"emailField"_s));

    m_gallery->press(Qt::Key_L, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->hasFocus(u"passwordField"_s));
    QCOMPARE(text(u"emailField"_s), u"ada@example.org"_s);
    QCOMPARE(text(u"passwordField"_s), u"difference"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::SignedIn);
    QTRY_VERIFY(!m_gallery->find(u"emailField"_s));

    session().resetToAnon();
    m_gallery->click(u"signInButton"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"passwordField"_s));
    QCOMPARE(text(u"passwordField"_s), QString());
}

void SignInTest::passwordCanBeRead() {
    openSheet();
    m_gallery->press(Qt::Key_Tab);
    m_gallery->type(u"difference"_s);
    QCOMPARE(m_gallery->item(u"passwordField"_s)->property("displayText").toString(),
             QString(10, u'•'));
    m_gallery->click(u"passwordEye"_s);
    QCOMPARE(m_gallery->item(u"passwordField"_s)->property("displayText").toString(),
             u"difference"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"emailField"_s));
    // Hidden again the next time.
    m_gallery->press(Qt::Key_L, Qt::ControlModifier);
    QTRY_VERIFY(m_gallery->find(u"passwordField"_s));
    QCOMPARE(m_gallery->item(u"passwordField"_s)->property("displayText").toString(),
             QString(10, u'•'));
}

void SignInTest::languageBesideTheForm() {
    openSheet();
    m_gallery->type(u"ada@example.org"_s);
    for (const QString &word : {u"Войти"_s, u"Sign in"_s}) {
        m_gallery->click(u"switchLanguage"_s);
        QTRY_COMPARE(text(u"submitAuth"_s), word);
        QCOMPARE(text(u"emailField"_s), u"ada@example.org"_s);
    }
}

/// What still arrives for the session of before reaches nobody.
void SignInTest::signOutDuringAnAnswer() {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->press(Qt::Key_K, Qt::ControlModifier);
    m_gallery->type(u"How was the week?"_s);
    m_gallery->press(Qt::Key_Return);
    m_workspace->row(101, u"How was the week?"_s, u"user"_s);
    m_workspace->row(102, u"A good week"_s);
    QTRY_VERIFY(m_workspace->texts().contains(u"A good week"_s));

    m_workspace->backend.hold(u"POST api/v2/auth/logout"_s);
    m_gallery->click(u"profileButton"_s);
    m_gallery->click(u"signOutRow"_s);
    m_workspace->row(102, u"A good week with"_s);
    QTRY_VERIFY(m_workspace->texts().contains(u"A good week with"_s));
    m_workspace->backend.release(u"POST api/v2/auth/logout"_s);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::Anon);
    m_workspace->backend.sendRow(test::kivChat + u"/stream"_s,
                                 test::rowJson(102, u"assistant"_s, Workspace::reportAnswer()));
    m_workspace->settled();
    m_workspace->clock.advance(5s);
    QCOMPARE(m_workspace->texts(),
             QStringList{
                 u"Sign in to talk to your agents, projects and KIV — everything here is real."_s});
    QCOMPARE(m_workspace->store->canvas()->state(), store::CanvasState::SignedOut);
    QCOMPARE(m_workspace->store->canvas()->history()->count(), 0);
    QVERIFY(m_gallery->find(u"signInButton"_s));
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::SignInTest)
#include "SignInTest.moc"
