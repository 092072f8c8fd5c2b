#include "ui/EveryPlace.h"

#include "ui/Workspace.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

namespace {

void require(bool condition, const char *what) {
    if (!condition)
        qFatal("The window does not come to %s", what);
}

/// The way through the window.
class Way {
public:
    Way(Gallery &gallery, const Look &look, const std::function<void(const QString &)> &visit)
        : m_gallery(gallery), m_look(look), m_visit(visit) {
        m_workspace.allowCalls(
            R"({"call_id":"now","signed_url":"wss://voice.example","max_duration_secs":60})");
        m_workspace.answerAccount();
        m_workspace.backend.answer(u"GET api/v2/projects/ferry/events"_s, Workspace::events());
        store().dictation()->setService(&m_speech);
    }

    void go() {
        signedOut();
        conversation();
        popovers();
        dialogs();
        dictation();
        call();
        panels();
        accountPages();
        wizard();
    }

private:
    void signedOut();
    void conversation();
    void popovers();
    void dialogs();
    void dictation();
    void call();
    void endOfCall();
    void panels();
    void pastCalls();
    void accountPages();
    void wizard();

    void visit(const char *place) { visit(QString(QLatin1StringView(place))); }
    void visit(const QString &place) {
        QTest::qWait(20); // what follows from the last step is done
        m_visit(place);
    }
    /// Opens what an item opens, visits it and closes it.
    void visitBehind(const char *item, const char *place) {
        m_gallery.click(QLatin1StringView(item));
        QTest::qWait(200);
        visit(place);
        escape();
    }
    void escape() {
        m_gallery.press(Qt::Key_Escape);
        QTest::qWait(200);
    }
    void click(const char *item) {
        QTest::qWait(20);
        m_gallery.click(QLatin1StringView(item));
    }
    /// The same by the keyboard, wherever the page has scrolled to.
    void press(const char *item) {
        m_gallery.item(QLatin1StringView(item))->forceActiveFocus(Qt::TabFocusReason);
        m_gallery.press(Qt::Key_Space);
    }
    store::AppStore &store() { return *m_workspace.store; }
    store::CanvasState canvasState() { return store().canvas()->state(); }

    test::ScriptedSpeech m_speech;
    Workspace m_workspace;
    Gallery &m_gallery;
    const Look &m_look;
    const std::function<void(const QString &)> &m_visit;
};

void Way::signedOut() {
    require(m_workspace.bootSignedOut(), "its start");
    store().appearance()->presetLanguage(m_look.language);
    store().appearance()->presetTextSize(m_look.textSize);
    m_gallery.setDark(m_look.dark);
    m_gallery.open(store(), m_look.size);
    visit("signed-out");
    m_gallery.click(u"signInButton"_s);
    visit("sign-in");
    click("switchAuthMode");
    m_gallery.type(u"lead@night-ferry.example"_s);
    m_gallery.press(Qt::Key_Tab);
    m_gallery.type(u"short"_s);
    m_gallery.press(Qt::Key_Return);
    visit("sign-up");
    escape();
}

void Way::conversation() {
    m_workspace.backend.answer(
        u"GET api/v2/auth/me"_s,
        R"({"id":"u1","email":"lead@night-ferry.example","name":"Ona Lindqvist"})");
    require(m_workspace.signIn(), "its conversation");
    visit("empty");
    store().chat()->send(u"Tell me a story"_s);
    visit("thinking");
    require(m_workspace.ask(u"Tell me a story"_s,
                            u"Once there was a ferry.\n\n- [x] It sailed\n- [ ] It came back"_s,
                            QString()),
            "its hint");
    visit("hint");
    store().chat()->send(u"How was the week?"_s);
    m_workspace.row(150, Workspace::reportAnswer());
    require(QTest::qWaitFor([&] { return canvasState() == store::CanvasState::BuildingScene; }),
            "a scene");
    visit("building");
    require(m_workspace.settle(u"report"_s), "its report");
    visit("report");
    click("copyButton");
    m_gallery.item(u"toast:0"_s);
    visit("toast");
    m_workspace.connectivity.setOnline(false);
    visit("offline");
    m_workspace.connectivity.setOnline(true);
}

void Way::popovers() {
    m_gallery.press(Qt::Key_F10);
    QTest::qWait(200);
    visit("menu");
    escape();
    visitBehind("scopeButton", "scope");
    visitBehind("historyButton", "history");
    visitBehind("profileButton", "profile");
    visitBehind("exportButton", "export");
    visitBehind("refineButton", "refine");
    m_gallery.press(Qt::Key_J, Qt::ControlModifier);
    QTest::qWait(400);
    visit("dock");
    visitBehind("moreButton", "more");
    click("findButton");
    m_gallery.type(u"week"_s);
    visit("find");
    escape();
    m_gallery.press(Qt::Key_J, Qt::ControlModifier);
    QTest::qWait(400);
    m_gallery.press(Qt::Key_Backslash, Qt::ControlModifier);
    visit("strip");
    m_gallery.press(Qt::Key_Backslash, Qt::ControlModifier);
}

void Way::dialogs() {
    m_gallery.press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    m_gallery.item(u"paletteSearch"_s);
    visit("palette");
    m_gallery.type(m_look.language == store::Language::Russian ? u"клавиш"_s : u"keyboard"_s);
    m_gallery.press(Qt::Key_Return);
    m_gallery.item(u"shortcutList"_s);
    visit("shortcuts");
    escape();
    m_gallery.commands().perform(Command::About);
    m_gallery.item(u"aboutVersion"_s);
    visit("about");
    click("showNotices");
    m_gallery.item(u"noticeList"_s);
    visit("notices");
    escape();
}

void Way::dictation() {
    m_gallery.item(u"micButton"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery.press(Qt::Key_Down, Qt::AltModifier);
    m_gallery.item(u"microphone:desk"_s);
    QTest::qWait(200);
    visit("microphones");
    escape();
    press("micButton");
    m_speech.authorise();
    m_speech.interim(u"Which of them is behind"_s);
    m_workspace.microphones.hear(QByteArray(64, '\0'));
    visit("dictation");
    store().dictation()->stop();
    store().chat()->setDraft(QString());
}

void Way::call() {
    require(m_workspace.dial(), "a call");
    visit("call-connecting");
    m_workspace.connected();
    m_gallery.item(u"callTimer"_s);
    m_workspace.microphones.hear(QByteArray(640, '\0'));
    visit("call-listening");
    m_workspace.say(u"user"_s, u"How do the projects look this week?"_s);
    m_workspace.say(u"ai"_s, u"Three of five are on track. Orchard waits for a tax field."_s);
    m_workspace.speaking(true);
    visit("call-speaking");
    m_workspace.speaking(false);
    press("muteButton");
    // Where there is room for the transcript it shows from the start.
    press("transcriptButton");
    visit("call-muted");
    press("typeButton");
    m_gallery.type(u"And Glasshouse?"_s);
    visit("call-typing");
    escape();
    press("transcriptButton");
    press("holdButton");
    visit("call-held");
    press("holdButton");
    press("microphoneButton");
    m_gallery.item(u"microphone:desk"_s);
    QTest::qWait(200);
    visit("call-microphones");
    escape();
    press("leaveCallScreen");
    visit("call-pill");
    endOfCall();
}

void Way::endOfCall() {
    press("callPill");
    m_workspace.clock.advance(31s);
    visit("call-warning");
    m_workspace.drop();
    visit("call-reconnecting");
    m_workspace.connected();
    require(QTest::qWaitFor([&] { return !store().call()->callReconnecting(); }), "its call again");
    m_workspace.drop();
    require(QTest::qWaitFor([&] { return !store().call()->callError().isEmpty(); }), "a failure");
    visit("call-failed");
    m_workspace.clock.advance(5s);
    require(QTest::qWaitFor([&] { return !store().call()->call(); }), "what was said");
    visit("call-words");
    store().call()->toggleCallLines(
        u"now"_s); // its line is above what was said, maybe out of sight
    m_gallery.item(u"callLine:now"_s);
    visit("call-line");
    require(m_workspace.connect(), "another call");
    m_gallery.press(Qt::Key_D, Qt::ControlModifier);
    visit("call-ended");
    m_workspace.clock.advance(5s);
    require(QTest::qWaitFor([&] { return !store().call()->call(); }), "the end of it");
}

void Way::panels() {
    store().scope()->enterProject(u"ferry"_s);
    require(m_workspace.streaming(u"api/v2/projects/ferry/chat"_s, 1), "a project");
    visit("project");
    visitBehind("eventsButton", "events");
    for (const char *panel : {"agents", "events"}) {
        store().canvas()->openPanel(QLatin1StringView(panel));
        require(QTest::qWaitFor([&] { return !store().events()->eventsLoading(); }), panel);
        visit(QLatin1StringView(panel) + u"-page"_s);
    }
    pastCalls();
    store().canvas()->closePanel();
}

void Way::pastCalls() {
    const QString route = u"GET api/v2/voice/calls"_s;
    m_workspace.backend.answer(route, R"({"error":"down"})", 500);
    store().canvas()->openPanel(u"calls"_s);
    m_gallery.item(u"callsRetry"_s);
    visit("calls-failed");
    m_workspace.backend.answer(route, Workspace::pastCalls());
    m_workspace.backend.answer(u"GET api/v2/voice/calls/c3"_s, Workspace::pastTranscript());
    press("callsRetry");
    click("pastCall:c3");
    m_gallery.item(u"pastLine:2"_s);
    visit("calls");
}

void Way::accountPages() {
    store().layout()->openAccount(u"profile"_s);
    require(QTest::qWaitFor([&] {
                return store().account()->profileLoad() == store::LoadState::Ready &&
                       store().account()->budgetLoad() == store::LoadState::Ready;
            }),
            "the account");
    for (const char *tab :
         {"plan", "security", "sources", "voice", "notifications", "memory", "profile"}) {
        click(qPrintable(QLatin1StringView(tab) + u"Tab"_s));
        m_gallery.item(QLatin1StringView(tab) + u"Page"_s);
        visit(u"account-"_s + QLatin1StringView(tab));
    }
    press("country");
    m_gallery.item(u"choiceList"_s);
    visit("account-list");
    escape();
    press("memoryTab");
    press("goals_md");
    m_gallery.item(u"documentText"_s)->forceActiveFocus(Qt::TabFocusReason);
    visit("account-editor");
    m_gallery.item(u"documentText"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_gallery.type(u"x"_s);
    press("leaveAccount");
    m_gallery.item(u"leaveAnyway"_s);
    visit("leave");
    click("leaveAnyway");
    QTest::qWait(200);
}

void Way::wizard() {
    m_gallery.commands().perform(Command::NewAgent);
    m_gallery.item(u"template:empty"_s);
    visit("create-template");
    click("wizardStep1");
    visit("create-kind");
    click("wizardNext");
    click("template:researcher");
    click("wizardNext");
    m_gallery.type(u"2"_s);
    visit("create-details");
    click("wizardNext");
    visit("create-tools");
    click("wizardNext");
    visit("create-review");
    escape();
    m_gallery.item(u"keepEditing"_s);
    visit("create-asked");
    click("discardDraft");
    m_gallery.commands().perform(Command::NewProject);
    m_gallery.item(u"template:launch"_s);
    m_gallery.press(Qt::Key_Return);
    m_gallery.item(u"createBrief"_s);
    visit("create-brief");
}

} // namespace

void visitEveryPlace(Gallery &gallery, const Look &look,
                     const std::function<void(const QString &)> &visit) {
    Way way(gallery, look, visit);
    way.go();
    gallery.close();
}

} // namespace kiv::ui
