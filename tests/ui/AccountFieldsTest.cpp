#include "ui/AccountWindow.h"

#include <QJsonArray>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kiv::ui {

namespace {

/// Picks what the test says.
class OneFile : public store::FileChooser {
public:
    void choose(const QString &, const QStringList &, Chosen chosen) override { chosen({file}); }
    QUrl file;
};

} // namespace

/// The fields of the account pages, by mouse and keys, and what they send.
class AccountFieldsTest : public AccountWindow {
    Q_OBJECT

private Q_SLOTS:
    void savesOnLeavingAField();
    void escapeDropsWhatWasTyped();
    void choosesFromAList();
    void sectors();
    void switches();
    void modes();
    void days();
    void password();
    void crop();
};

void AccountFieldsTest::savesOnLeavingAField() {
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

void AccountFieldsTest::escapeDropsWhatWasTyped() {
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

void AccountFieldsTest::choosesFromAList() {
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

void AccountFieldsTest::sectors() {
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

void AccountFieldsTest::switches() {
    open(u"notifications"_s);
    QVERIFY(m_gallery->item(u"mailSwitch"_s)->property("checked").toBool());
    click(u"mailSwitch"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"notification_email"_s, false}}));
    m_workspace->backend.answer(profilePatch, R"({"error":"Not now."})", 503);
    click(u"approvalsSwitch"_s);
    QTRY_COMPARE(text(u"errorLine"_s), u"Not now."_s);
    QCOMPARE(text(u"accountState"_s), u"Not everything is saved"_s);
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

void AccountFieldsTest::modes() {
    open(u"sources"_s);
    click(u"segment:Ask first"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"default_data_sources_mode"_s, u"ask"_s}}));
    click(u"chatModel"_s);
    m_gallery->type(u"large-2"_s);
    m_gallery->press(Qt::Key_Return);
    QTRY_COMPARE(patched(), (QJsonObject{{u"chat_llm_model"_s, u"large-2"_s}}));
}

void AccountFieldsTest::days() {
    open(u"voice"_s);
    click(u"day4"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"working_hours_days"_s, u"Mon, Tue, Wed, Thu"_s}}));
    click(u"day6"_s);
    QTRY_COMPARE(patched(), (QJsonObject{{u"working_hours_days"_s, u"Mon, Tue, Wed, Thu, Sun"_s}}));
}

void AccountFieldsTest::password() {
    const QString passwordPost = u"POST api/v2/user/password"_s;
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

void AccountFieldsTest::crop() {
    const QString avatarPost = u"POST api/v2/user/avatar"_s;
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

} // namespace kiv::ui

QTEST_MAIN(kiv::ui::AccountFieldsTest)
#include "AccountFieldsTest.moc"
