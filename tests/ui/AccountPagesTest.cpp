#include "ui/Gallery.h"
#include "ui/Workspace.h"

#include <QBuffer>
#include <QJsonArray>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

const QString profilePatch = u"PATCH api/v2/user/profile"_s;
const QString passwordPost = u"POST api/v2/user/password"_s;
const QString avatarPost = u"POST api/v2/user/avatar"_s;

/// Picks what the test says.
class OneFile : public store::FileChooser {
public:
    void choose(const QString &, const QStringList &, Chosen chosen) override { chosen({file}); }
    QUrl file;
};

} // namespace

/// The account pages, by mouse and keys, and what they send.
class AccountPagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void focusInSight();
    void pictures_data();
    void pictures();
    void opensAndCloses();
    void savesOnLeavingAField();
    void escapeDropsWhatWasTyped();
    void failureKeepsTheText();
    void choosesFromAList();
    void sectors();
    void switches();
    void modes();
    void days();
    void document();
    void leavingAsks();
    void password();
    void crop();
    void loadFails();

private:
    void open(const QString &tab, QSize size = {1440, 900});
    QJsonObject patched() const {
        const auto requests = m_workspace->backend.requests(profilePatch);
        return requests.isEmpty() ? QJsonObject() : requests.last().body;
    }
    QString text(const QString &item) const {
        return m_gallery->item(item)->property("text").toString();
    }
    store::LayoutRoom &layout() { return *m_workspace->store->layout(); }
    /// Brings an item into view and clicks it.
    void click(const QString &item);

    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<Gallery> m_gallery;
};

void AccountPagesTest::init() {
    QTest::failOnWarning(QRegularExpression(u"qrc:|QML"_s));
    m_workspace = std::make_unique<Workspace>();
    m_gallery = std::make_unique<Gallery>();
    test::ScriptedBackend &backend = m_workspace->backend;
    backend.answer(u"GET api/v2/user/profile"_s,
                   R"({"email":"lead@night-ferry.example",
        "full_name":"Ona Lindqvist","handle":"ona.lindqvist","company_name":"Harbour & Lane",
        "company_website":"harbour-lane.example","company_size":"51–200","industry":"Transport",
        "jobTitle":"Operations lead","time_zone":"Europe/Oslo","preferred_language":"English",
        "preferred_country":"Norway",
        "preferred_sectors":["Logistics","Public services","Образование"],
        "communication_style":"balanced","working_hours_start":"09:00",
        "working_hours_end":"17:30","working_hours_days":"Mon, Tue, Wed, Thu, Fri",
        "notification_email":true,
        "goals_md":)"
                   R"("# Goals\n\nShip the **guided sign-up**.\n\n- [x] Collect\n- [ ] Fill\n\n)"
                   R"(| Quarter | Orders |\n|---|---|\n| Q1 | 120 |\n\n```sh\nmake ship\n```"})");
    backend.answer(profilePatch, "{}");
    backend.answer(u"GET api/v2/user/plan"_s,
                   R"({"name":"Team","plan_key":"team",
        "token_limit":2000000,"spent_tokens":1240500,"tokens_left":759500})");
    backend.answer(u"GET api/v2/user/wallet"_s,
                   R"({"wallet":{"balance_credits":212.4,"available_credits":180}})");
}

void AccountPagesTest::cleanup() {
    m_gallery.reset();
    m_workspace.reset();
}

void AccountPagesTest::open(const QString &tab, QSize size) {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, size);
    layout().openAccount(tab);
    QTRY_COMPARE(m_workspace->store->account()->profileLoad(), store::LoadState::Ready);
    QTRY_COMPARE(m_workspace->store->account()->budgetLoad(), store::LoadState::Ready);
    m_gallery->item(tab + u"Page"_s);
}

void AccountPagesTest::click(const QString &item) {
    QTest::qWait(20);
    m_gallery->click(item);
}

/// The page scrolls to a field that the tab key reaches.
void AccountPagesTest::focusInSight() {
    open(u"profile"_s, {1024, 680});
    m_gallery->item(u"leaveAccount"_s)->forceActiveFocus(Qt::TabFocusReason);
    const double pageTop = m_gallery->item(u"profilePage"_s)->mapToScene(QPointF()).y();
    double lowest = 0; // of the page
    for (int step = 0; step < 32; ++step) {
        m_gallery->press(Qt::Key_Tab);
        const QQuickItem *item = m_gallery->window().activeFocusItem();
        const double top = item->mapToScene(QPointF()).y();
        QVERIFY2(top >= 0 && top + item->height() <= 680, qPrintable(item->objectName()));
        lowest = std::max(lowest, item->mapToItem(m_gallery->item(u"profilePage"_s), {}).y());
    }
    QCOMPARE_GT(pageTop + lowest, 680); // where no field was in sight at first
}

void AccountPagesTest::pictures_data() {
    addLooks();
}

void AccountPagesTest::pictures() {
    QFETCH(bool, dark);
    QFETCH(QSize, size);
    const QString name = u"account-"_s + QLatin1StringView(QTest::currentDataTag()) + u'-';
    m_gallery->setDark(dark);
    open(u"profile"_s, size);
    for (const char *tab :
         {"profile", "plan", "security", "memory", "sources", "voice", "notifications"}) {
        m_gallery->click(QLatin1StringView(tab) + u"Tab"_s);
        QVERIFY(m_gallery->find(QLatin1StringView(tab) + u"Page"_s));
        m_gallery->save(name + QLatin1StringView(tab));
    }
    m_gallery->click(u"memoryTab"_s);
    click(u"goals_md"_s);
    m_gallery->save(name + u"editor"_s);
    click(u"segment:Preview"_s);
    m_gallery->save(name + u"preview"_s);
    m_gallery->click(u"profileTab"_s);
    click(u"country"_s);
    m_gallery->save(name + u"list"_s);
}

void AccountPagesTest::opensAndCloses() {
    QVERIFY(m_workspace->signIn());
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->click(u"profileButton"_s);
    m_gallery->click(u"notificationsRow"_s);
    m_gallery->item(u"notificationsPage"_s);
    QVERIFY(!layout().profileOpen());
    QTRY_COMPARE(text(u"accountState"_s), u"All changes saved"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"notificationsPage"_s));
    m_gallery->press(Qt::Key_Comma, Qt::ControlModifier);
    m_gallery->item(u"profilePage"_s);
    m_gallery->click(u"leaveAccount"_s);
    QTRY_VERIFY(!layout().isAccount());
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
}

void AccountPagesTest::savesOnLeavingAField() {
    open(u"profile"_s);
    click(u"jobTitle"_s);
    m_gallery->press(Qt::Key_A, Qt::ControlModifier);
    m_gallery->type(u"Head of ferries "_s);
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
    QCOMPARE(text(u"accountState"_s), u"Not saved yet"_s);
    m_gallery->press(Qt::Key_Tab);
    QTRY_COMPARE(patched(), (QJsonObject{{u"jobTitle"_s, u"Head of ferries"_s}}));
    QTRY_VERIFY(m_gallery->find(u"undoSave"_s));
    m_gallery->save(u"account-saved"_s);
    click(u"undoSave"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"jobTitle"_s, u"Operations lead"_s}}));
    QCOMPARE(text(u"jobTitle"_s), u"Operations lead"_s);
    QCOMPARE(m_workspace->backend.count(profilePatch), 2);
}

void AccountPagesTest::escapeDropsWhatWasTyped() {
    open(u"profile"_s);
    click(u"handle"_s);
    m_gallery->type(u"x"_s);
    m_gallery->press(Qt::Key_Escape);
    QCOMPARE(text(u"handle"_s), u"ona.lindqvist"_s);
    QVERIFY(layout().isAccount());
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!layout().isAccount());
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
}

void AccountPagesTest::failureKeepsTheText() {
    open(u"profile"_s);
    m_workspace->backend.answer(profilePatch, R"({"error":"This handle is taken."})", 409);
    click(u"handle"_s);
    m_gallery->press(Qt::Key_A, Qt::ControlModifier);
    m_gallery->type(u"captain"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(text(u"errorLine"_s), u"This handle is taken."_s);
    QCOMPARE(text(u"handle"_s), u"captain"_s);
    QCOMPARE(text(u"accountState"_s), u"Not everything is saved"_s);
    m_gallery->save(u"account-failed"_s);
    m_workspace->backend.answer(profilePatch, "{}");
    click(u"retrySave"_s);
    QTRY_VERIFY(!m_gallery->find(u"errorLine"_s));
    QTRY_COMPARE(m_workspace->backend.count(profilePatch), 2);
    QCOMPARE(patched(), (QJsonObject{{u"handle"_s, u"captain"_s}}));
}

void AccountPagesTest::choosesFromAList() {
    open(u"profile"_s);
    click(u"timeZone"_s);
    m_gallery->item(u"choiceSearch"_s);
    m_gallery->type(u"vladiv"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(patched(), (QJsonObject{{u"time_zone"_s, u"Asia/Vladivostok"_s}}));
    QVERIFY(text(u"timeZone"_s).contains(u"Asia/Vladivostok"_s));
    QTRY_VERIFY(!m_gallery->find(u"choiceList"_s));
    // A short list takes the keys itself, and Escape leaves it and the page as they are.
    click(u"companySize"_s);
    m_gallery->item(u"choiceList"_s);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"choiceList"_s));
    QVERIFY(layout().isAccount());
    click(u"companySize"_s);
    m_gallery->item(u"choiceList"_s);
    m_gallery->press(Qt::Key_Down);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(patched(), (QJsonObject{{u"company_size"_s, u"201–1,000"_s}}));
    QCOMPARE(m_workspace->backend.count(profilePatch), 2);
}

void AccountPagesTest::sectors() {
    open(u"profile"_s);
    click(u"sectors"_s);
    m_gallery->type(u"Energy,"_s);
    QTRY_COMPARE(patched().value(u"preferred_sectors"_s).toArray().size(), 4);
    QCOMPARE(patched().value(u"preferred_sectors"_s).toArray().last(), QJsonValue(u"Energy"_s));
    m_gallery->press(Qt::Key_Backspace);
    QTRY_COMPARE(patched().value(u"preferred_sectors"_s).toArray().size(), 3);
    click(u"dropEntry"_s); // of the first
    QTRY_COMPARE(patched(), (QJsonObject{{u"preferred_sectors"_s,
                                          QJsonArray{u"Public services"_s, u"Образование"_s}}}));
}

void AccountPagesTest::switches() {
    open(u"notifications"_s);
    QVERIFY(m_gallery->item(u"mailSwitch"_s)->property("checked").toBool());
    click(u"mailSwitch"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"notification_email"_s, false}}));
    m_workspace->backend.answer(profilePatch, R"({"error":"Not now."})", 503);
    click(u"approvalsSwitch"_s);
    QTRY_COMPARE(text(u"errorLine"_s), u"Not now."_s);
    QVERIFY(m_gallery->item(u"approvalsSwitch"_s)->property("checked").toBool());
    m_workspace->backend.answer(profilePatch, "{}");
    click(u"retrySave"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"notification_approvals"_s, true}}));
    QTRY_COMPARE(m_workspace->store->account()->field(u"notification_approvals"_s)->state(),
                 store::SaveState::Saved);
    click(u"undoSave"_s);
    QTRY_VERIFY(!m_gallery->item(u"approvalsSwitch"_s)->property("checked").toBool());
    QTRY_COMPARE(patched(), (QJsonObject{{u"notification_approvals"_s, false}}));
}

void AccountPagesTest::modes() {
    open(u"sources"_s);
    click(u"segment:Ask first"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"default_data_sources_mode"_s, u"ask"_s}}));
    click(u"chatModel"_s);
    m_gallery->type(u"large-2"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(patched(), (QJsonObject{{u"chat_llm_model"_s, u"large-2"_s}}));
}

void AccountPagesTest::days() {
    open(u"voice"_s);
    click(u"day4"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"working_hours_days"_s, u"Mon, Tue, Wed, Thu"_s}}));
    click(u"day6"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"working_hours_days"_s, u"Mon, Tue, Wed, Thu, Sun"_s}}));
}

void AccountPagesTest::document() {
    open(u"memory"_s);
    click(u"shared_md"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"documentText"_s));
    m_gallery->type(u"We ship on Thursdays."_s);
    QCOMPARE(text(u"documentLength"_s), u"21 of 20,000 characters"_s);
    // Back in the list it is still there, and not saved.
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(m_gallery->find(u"shared_md"_s));
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
    click(u"shared_md"_s);
    QTRY_COMPARE(text(u"documentText"_s), u"We ship on Thursdays."_s);
    click(u"saveDocument"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"shared_md"_s, u"We ship on Thursdays."_s}}));
    QTRY_VERIFY(m_gallery->find(u"undoSave"_s));
}

void AccountPagesTest::leavingAsks() {
    open(u"memory"_s);
    click(u"goals_md"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"documentText"_s));
    m_gallery->type(u"!"_s);
    click(u"leaveAccount"_s);
    m_gallery->item(u"leaveAnyway"_s);
    m_gallery->save(u"account-leave"_s);
    m_gallery->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_gallery->find(u"leaveAnyway"_s));
    QVERIFY(layout().isAccount());
    click(u"accountSignOut"_s);
    click(u"leaveAnyway"_s);
    QTRY_COMPARE(m_workspace->store->scope()->auth(), store::AuthPhase::Anon);
    QVERIFY(!layout().isAccount());
    QCOMPARE(m_workspace->backend.count(profilePatch), 0);
}

void AccountPagesTest::password() {
    open(u"security"_s);
    m_workspace->backend.answer(
        passwordPost, R"({"error":"The current password is wrong.","code":"wrong_password"})", 400);
    click(u"currentPassword"_s);
    m_gallery->type(u"harbour-16"_s);
    click(u"newPassword"_s);
    m_gallery->type(u"harbour-17"_s);
    click(u"repeatedPassword"_s);
    m_gallery->type(u"harbour-1"_s);
    click(u"changePassword"_s);
    QTRY_COMPARE(text(u"passwordError"_s), u"New passwords do not match."_s);
    QCOMPARE(m_workspace->backend.count(passwordPost), 0);
    click(u"repeatedPassword"_s);
    m_gallery->type(u"7"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(text(u"passwordError"_s), u"The current password is wrong."_s);
    QVERIFY(m_gallery->item(u"currentPassword"_s)->property("failed").toBool());
    QCOMPARE(text(u"newPassword"_s), u"harbour-17"_s);
    m_workspace->backend.answer(passwordPost, "{}");
    click(u"changePassword"_s);
    QTRY_COMPARE(text(u"passwordNote"_s), u"Password changed. Other sessions were signed out."_s);
    QCOMPARE(m_workspace->backend.requests(passwordPost).last().body,
             (QJsonObject{{u"current_password"_s, u"harbour-16"_s},
                          {u"new_password"_s, u"harbour-17"_s}}));
    QCOMPARE(text(u"newPassword"_s), QString());
}

void AccountPagesTest::crop() {
    OneFile chooser;
    m_workspace->store->account()->setChooser(&chooser);
    open(u"profile"_s);
    const QString path = m_workspace->folder.filePath(u"wide.png"_s);
    QImage picture(900, 300, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (int x = 600; x < 900; ++x) {
        for (int y = 0; y < 300; ++y)
            picture.setPixelColor(x, y, Qt::blue);
    }
    QVERIFY(picture.save(path));
    chooser.file = QUrl::fromLocalFile(m_workspace->folder.filePath(u"none.png"_s));
    click(u"changePicture"_s);
    QTRY_COMPARE(text(u"errorLine"_s), u"“none.png” is no picture that can be read."_s);

    chooser.file = QUrl::fromLocalFile(path);
    m_workspace->backend.answer(avatarPost, R"({"error":"No room."})", 507);
    click(u"changePicture"_s);
    QTRY_VERIFY(m_gallery->hasFocus(u"cropStage"_s));
    m_gallery->save(u"account-crop"_s);
    // Drag the picture to its right end, further than it goes.
    const QPoint middle = m_gallery->middleOf(u"cropStage"_s);
    QTest::mousePress(&m_gallery->window(), Qt::LeftButton, {}, middle);
    for (int x = 0; x <= 600; x += 40)
        QTest::mouseMove(&m_gallery->window(), middle - QPoint(x, 0), 5);
    QTest::mouseRelease(&m_gallery->window(), Qt::LeftButton, {}, middle - QPoint(600, 0));
    click(u"usePicture"_s);
    QTRY_COMPARE(text(u"errorLine"_s), u"No room."_s);
    m_workspace->backend.answer(avatarPost, R"({"avatar_url":""})");
    click(u"retryPicture"_s);
    QTRY_COMPARE(m_workspace->backend.count(avatarPost), 2);
    const QByteArray raw = m_workspace->backend.requests(avatarPost).last().raw;
    const QImage sent = QImage::fromData(raw.mid(raw.indexOf("\x89PNG")), "PNG");
    QCOMPARE(sent.size(), QSize(300, 300));
    QCOMPARE(sent.pixelColor(20, 150), QColor(Qt::blue));
    QCOMPARE(sent.pixelColor(280, 150), QColor(Qt::blue));
    QTRY_VERIFY(!m_gallery->find(u"errorLine"_s));
}

void AccountPagesTest::loadFails() {
    QVERIFY(m_workspace->signIn());
    m_workspace->backend.answer(u"GET api/v2/user/profile"_s, R"({"error":"Out of order."})", 500);
    m_gallery->open(*m_workspace->store, {1440, 900});
    m_gallery->press(Qt::Key_Comma, Qt::ControlModifier);
    m_gallery->item(u"retryLoad"_s);
    m_gallery->save(u"account-load-failed"_s);
    m_workspace->backend.answer(u"GET api/v2/user/profile"_s, R"({"handle":"ona"})");
    click(u"retryLoad"_s);
    QTRY_COMPARE(text(u"handle"_s), u"ona"_s);
}

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::AccountPagesTest)
#include "AccountPagesTest.moc"
