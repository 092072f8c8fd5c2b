// The account: the profile field by field, plan and wallet, picture and password.

#include "AccountFixture.h"

#include <QJsonArray>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kiv;
using namespace kiv::store;
using namespace kiv::test;

class AccountTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void loads() {
        AccountFixture f;
        QVERIFY(f.open());
        QCOMPARE(f.store->layout()->account(), u"profile"_s);
        QCOMPARE(f.field(u"full_name"_s).text(), u"Ada Byron"_s);
        QCOMPARE(f.field(u"jobTitle"_s).text(), u"Engineer"_s);
        QCOMPARE(f.field(u"industry"_s).text(), QString());
        QVERIFY(f.field(u"notification_email"_s).isOn());
        QCOMPARE(f.field(u"preferred_sectors"_s).entries(), QStringList{u"Energy"_s});
        QVERIFY(!f.account().field(u"email"_s)); // the server's own
        const AccountBudget budget = f.account().budget();
        QCOMPARE(budget.left, 750.0);
        QCOMPARE(budget.balance, 12.5);
        QCOMPARE(budget.available, AccountBudget::unknown);
    }

    void loadsAgain() {
        AccountFixture f;
        f.backend.answer(planGet, R"({"error":"No plan today."})", 500);
        QVERIFY(f.signIn());
        f.backend.answer(profileGet, R"({"error":"Out of order."})", 500);
        f.store->layout()->openAccount(u"plan"_s);
        SOON_COMPARE(f.account().profileLoad(), LoadState::Failed);
        QCOMPARE(f.account().profileError(), u"Out of order."_s);
        SOON_COMPARE(f.account().budgetLoad(), LoadState::Failed);
        QCOMPARE(f.account().budgetError(), u"No plan today."_s);
        f.backend.answer(profileGet, R"({"handle":"ada"})");
        f.account().loadProfile();
        QCOMPARE(f.account().profileLoad(), LoadState::Loading);
        SOON_COMPARE(f.account().profileLoad(), LoadState::Ready);
        QCOMPARE(f.field(u"handle"_s).text(), u"ada"_s);
    }

    void onlyWhatChangedIsSent() {
        AccountFixture f;
        QVERIFY(f.open());
        f.field(u"handle"_s).choose(u"ada"_s); // as it was
        f.field(u"jobTitle"_s).choose(u"Lead"_s);
        f.field(u"notification_approvals"_s).turn(true);
        f.field(u"preferred_sectors"_s).addEntry(u"  Public   services "_s);
        f.field(u"preferred_sectors"_s).addEntry(u"energy"_s); // there already
        QCOMPARE(f.account().saveState(), SaveState::Saving);
        SOON_COMPARE(f.account().saveState(), SaveState::Stored);
        QCOMPARE(f.patches().size(), 3);
        for (const QJsonObject &body :
             {QJsonObject{{u"jobTitle"_s, u"Lead"_s}},
              QJsonObject{{u"notification_approvals"_s, true}},
              QJsonObject{{u"preferred_sectors"_s, QJsonArray{u"Energy"_s, u"Public services"_s}}}})
            QVERIFY(f.patches().contains(body));
    }

    void quickEditsOfOneField() {
        AccountFixture f;
        QVERIFY(f.open());
        AccountField &title = f.field(u"jobTitle"_s);
        f.backend.hold(profilePatch);
        title.choose(u"First"_s);
        SOON_COMPARE(f.patches().size(), 1);
        title.choose(u"Second"_s);
        title.choose(u"Third"_s);
        QCOMPARE(f.patches().size(), 1);
        f.backend.release(profilePatch);
        SOON_COMPARE(f.patches().size(), 2);
        SOON_COMPARE(title.state(), SaveState::Saved);
        QCOMPARE(f.patches().last(), (QJsonObject{{u"jobTitle"_s, u"Third"_s}}));
        QCOMPARE(title.text(), u"Third"_s);
    }

    void repliesDoNotTouchOtherFields() {
        AccountFixture f;
        QVERIFY(f.open());
        f.backend.answer(profilePatch,
                         R"({"full_name":"Ada B.","jobTitle":"as it was before","handle":"old"})");
        f.backend.hold(profilePatch);
        f.field(u"full_name"_s).choose(u"Ada  B."_s);
        f.field(u"handle"_s).edit(u"half typ"_s);
        SOON_COMPARE(f.patches().size(), 1);
        f.backend.release(profilePatch);
        SOON_COMPARE(f.field(u"full_name"_s).state(), SaveState::Saved);
        QCOMPARE(f.field(u"full_name"_s).text(), u"Ada B."_s); // as the server keeps it
        QCOMPARE(f.store->scope()->userName(), u"Ada B."_s);
        QCOMPARE(f.field(u"jobTitle"_s).text(), u"Engineer"_s);
        QCOMPARE(f.field(u"handle"_s).text(), u"half typ"_s);
        QCOMPARE(f.field(u"handle"_s).state(), SaveState::Edited);
        // A profile that comes in meanwhile leaves it, too.
        f.account().loadProfile();
        SOON_COMPARE(f.backend.count(profileGet), 3);
        SOON_COMPARE(f.field(u"jobTitle"_s).text(), u"Engineer"_s);
        QCOMPARE(f.field(u"handle"_s).text(), u"half typ"_s);
    }

    /// A profile that was asked for before something was saved may be older than that.
    void savedWhileLoading() {
        AccountFixture f;
        QVERIFY(f.open());
        const int before = f.backend.count(profileGet);
        f.backend.hold(profileGet);
        f.account().loadProfile();
        SOON_COMPARE(f.backend.count(profileGet), before + 1);
        f.field(u"jobTitle"_s).choose(u"Lead"_s);
        SOON_COMPARE(f.field(u"jobTitle"_s).state(), SaveState::Saved);
        SOON_COMPARE(f.backend.count(profileGet), before + 2);
        f.backend.answer(profileGet, R"({"jobTitle":"Lead","handle":"lace"})");
        f.backend.release(profileGet);
        SOON_COMPARE(f.field(u"handle"_s).text(), u"lace"_s);
        QCOMPARE(f.field(u"jobTitle"_s).text(), u"Lead"_s);
    }

    void undo() {
        AccountFixture f;
        QVERIFY(f.open());
        AccountField &title = f.field(u"jobTitle"_s);
        title.choose(u"Lead"_s);
        SOON_COMPARE(title.state(), SaveState::Saved);
        title.undo();
        QCOMPARE(title.text(), u"Engineer"_s);
        SOON_COMPARE(title.state(), SaveState::Saved);
        QCOMPARE(f.patches().last(), (QJsonObject{{u"jobTitle"_s, u"Engineer"_s}}));
        // News of one field ends that of another.
        f.field(u"handle"_s).choose(u"byron"_s);
        SOON_COMPARE(f.field(u"handle"_s).state(), SaveState::Saved);
        QCOMPARE(title.state(), SaveState::Stored);
        title.undo();
        QCOMPARE(title.text(), u"Engineer"_s);
    }

    void failedSaveKeepsTheEntry() {
        AccountFixture f;
        QVERIFY(f.open());
        AccountField &handle = f.field(u"handle"_s);
        f.backend.answer(profilePatch, R"({"error":"This handle is taken."})", 409);
        handle.choose(u"grace"_s);
        SOON_COMPARE(handle.state(), SaveState::Failed);
        QCOMPARE(handle.error(), u"This handle is taken."_s);
        QCOMPARE(handle.text(), u"grace"_s);
        QCOMPARE(f.account().saveState(), SaveState::Failed);
        f.backend.answer(profilePatch, "{}");
        handle.commit();
        QCOMPARE(handle.error(), QString());
        SOON_COMPARE(handle.state(), SaveState::Saved);
        QCOMPARE(f.patches().last(), (QJsonObject{{u"handle"_s, u"grace"_s}}));
    }

    void newerEntryAfterAFailure() {
        AccountFixture f;
        QVERIFY(f.open());
        AccountField &handle = f.field(u"handle"_s);
        f.backend.answer(profilePatch, R"({"error":"Taken."})", 409);
        f.backend.hold(profilePatch);
        handle.choose(u"grace"_s);
        SOON_COMPARE(f.patches().size(), 1);
        handle.choose(u"hopper"_s);
        f.backend.release(profilePatch);
        SOON_COMPARE(f.patches().size(), 2);
        SOON_COMPARE(handle.state(), SaveState::Failed);
        QCOMPARE(handle.text(), u"hopper"_s);
        handle.edit(u"ada"_s); // back to what is stored
        QCOMPARE(handle.state(), SaveState::Stored);
    }

    void leaving() {
        AccountFixture f;
        QVERIFY(f.open());
        f.field(u"jobTitle"_s).edit(u"Lead"_s);
        f.account().leave(); // saves what was typed
        QVERIFY(!f.store->layout()->isAccount());
        SOON_COMPARE(f.patches().size(), 1);

        // A document is saved by its own button.
        f.store->layout()->openAccount(u"memory"_s);
        f.field(u"goals_md"_s).edit(u"Ship it"_s);
        f.account().leave();
        QVERIFY(f.account().leaveAsked());
        f.account().stay();
        QVERIFY(f.store->layout()->isAccount());
        QCOMPARE(f.field(u"goals_md"_s).text(), u"Ship it"_s);
        f.account().leave();
        f.account().leaveAnyway();
        QVERIFY(!f.store->layout()->isAccount());
        QCOMPARE(f.field(u"goals_md"_s).text(), u"Ship"_s);
        QCOMPARE(f.patches().size(), 1);
    }

    void leavingByAnotherWay() {
        AccountFixture f;
        QVERIFY(f.open());
        QSignalSpy failures(&f.account(), &AccountRoom::failedElsewhere);
        f.backend.answer(profilePatch, R"({"error":"Taken."})", 409);
        f.field(u"handle"_s).edit(u"grace"_s);
        f.store->scope()->enterProject(u"ferry"_s);
        QVERIFY(!f.store->layout()->isAccount());
        SOON_COMPARE(failures.size(), 1);
        QVERIFY(failures.first().first().toString().contains(u"Taken."_s));
        // Nothing that was entered is lost.
        f.store->layout()->openAccount();
        QCOMPARE(f.field(u"handle"_s).text(), u"grace"_s);
        f.field(u"handle"_s).discard();

        // A link to the chat that is open already leads away from the pages, too.
        f.field(u"goals_md"_s).edit(u"Ship it"_s);
        f.store->door()->open(*ChatLink::parse(u"kiv://chat/project/ferry"_s));
        QVERIFY(f.account().leaveAsked() && f.store->layout()->isAccount());
        f.account().stay();

        // A scope that is picked is entered behind the question.
        f.store->scope()->pickGlobal();
        QVERIFY(f.account().leaveAsked());
        QVERIFY(f.store->layout()->isAccount());
        QVERIFY(f.store->scope()->project().isEmpty());
        f.account().leaveAnyway();
        QVERIFY(!f.store->layout()->isAccount());
        QCOMPARE(f.patches().size(), 1);
    }

    void windowCloses() {
        AccountFixture f;
        QVERIFY(f.open());
        QSignalSpy released(&f.account(), &AccountRoom::windowReleased);
        QVERIFY(f.store->releaseWindow());
        // A save under way is waited for.
        f.backend.hold(profilePatch);
        f.field(u"handle"_s).edit(u"grace"_s);
        QVERIFY(!f.store->releaseWindow());
        SOON_COMPARE(f.patches().size(), 1);
        QVERIFY(!f.account().leaveAsked());
        f.backend.release(profilePatch);
        SOON_COMPARE(released.size(), 1);
        // One that does not end asks; being asked to close once more gives in.
        f.backend.hold(profilePatch);
        f.field(u"handle"_s).edit(u"hopper"_s);
        QVERIFY(!f.store->releaseWindow());
        f.clock.advance(5s);
        QVERIFY(f.account().leaveAsked());
        f.account().stay();
        QVERIFY(!f.store->releaseWindow());
        QVERIFY(f.store->releaseWindow());
        f.backend.release(profilePatch);
        SOON_COMPARE(f.account().saveState(), SaveState::Stored);
        // So does one that fails, and a document.
        f.backend.answer(profilePatch, R"({"error":"Taken."})", 409);
        f.field(u"handle"_s).edit(u"ada"_s);
        QVERIFY(!f.store->releaseWindow());
        QTRY_VERIFY(f.account().leaveAsked());
        f.account().leaveAnyway();
        QCOMPARE(released.size(), 2);
        QVERIFY(f.store->releaseWindow());
        f.store->create()->start(u"project"_s, {});
        QVERIFY(f.store->releaseWindow());
        f.store->create()->start(u"project"_s, {});
        f.store->create()->setName(u"Quay"_s);
        QVERIFY(!f.store->releaseWindow());
        QVERIFY(f.store->create()->isAsking());
    }

    void signingOutForgets() {
        AccountFixture f;
        QVERIFY(f.open());
        f.field(u"goals_md"_s).edit(u"Ship it"_s);
        f.account().signOut();
        QVERIFY(f.account().leaveAsked());
        f.account().leaveAnyway();
        SOON_COMPARE(f.store->scope()->auth(), AuthPhase::Anon);
        QVERIFY(!f.store->layout()->isAccount());
        QCOMPARE(f.field(u"full_name"_s).text(), QString());
        QCOMPARE(f.account().profileLoad(), LoadState::Loading);
        QCOMPARE(f.account().budget(), AccountBudget());
        // There is no account to open then.
        f.store->layout()->openAccount();
        QVERIFY(!f.store->layout()->isAccount());
        QCOMPARE(f.store->session()->authSheet(), AuthSheetMode::Login);
    }

    void signedOutWhileSaving() {
        AccountFixture f;
        QVERIFY(f.open());
        f.backend.hold(profilePatch);
        f.field(u"handle"_s).choose(u"grace"_s);
        SOON_COMPARE(f.patches().size(), 1);
        f.store->session()->resetToAnon();
        f.backend.release(profilePatch);
        f.settled();
        QCOMPARE(f.field(u"handle"_s).text(), QString());
        QCOMPARE(f.account().saveState(), SaveState::Stored);
    }

    void password_data() {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<PasswordFault>("fault");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("requests");
        QTest::newRow("differ") << QStringList{u"old"_s, u"12345678"_s, u"12345679"_s} << 200
                                << "{}"_ba << PasswordFault::Repeated
                                << u"New passwords do not match."_s << 0;
        QTest::newRow("short") << QStringList{u"old"_s, u"1234567"_s, u"1234567"_s} << 200
                               << "{}"_ba << PasswordFault::Changed
                               << u"Password must be at least 8 characters."_s << 0;
        QTest::newRow("wrong")
            << QStringList{u"old"_s, u"12345678"_s, u"12345678"_s} << 400
            << R"({"error":"The current password is wrong.","code":"wrong_password"})"_ba
            << PasswordFault::Current << u"The current password is wrong."_s << 1;
        QTest::newRow("changed") << QStringList{u"old"_s, u"12345678"_s, u"12345678"_s} << 200
                                 << "{}"_ba << PasswordFault::None << QString() << 1;
        QTest::newRow("first one") << QStringList{QString(), u"12345678"_s, u"12345678"_s} << 200
                                   << "{}"_ba << PasswordFault::None << QString() << 1;
    }
    void password() {
        QFETCH(QStringList, typed);
        QFETCH(int, status);
        QFETCH(QByteArray, reply);
        AccountFixture f;
        QVERIFY(f.open());
        f.backend.answer(passwordPost, reply, status);
        f.account().changePassword(typed.at(0), typed.at(1), typed.at(2));
        SOON_VERIFY(!f.account().passwordBusy());
        QTEST(f.account().passwordFault(), "fault");
        QTEST(f.account().passwordError(), "error");
        QTEST(f.backend.count(passwordPost), "requests");
        const bool changed = f.account().passwordError().isEmpty();
        QCOMPARE(f.account().passwordNote(),
                 changed ? u"Password changed. Other sessions were signed out."_s : QString());
        if (changed) {
            QJsonObject body{{u"new_password"_s, typed.at(1)}};
            if (!typed.at(0).isEmpty())
                body.insert(u"current_password"_s, typed.at(0));
            QCOMPARE(f.backend.requests(passwordPost).first().body, body);
        }
    }

    void picture() {
        AccountFixture f;
        QVERIFY(f.open());
        f.backend.answer(avatarPost, R"({"error":"The picture is larger than 5 MiB."})", 413);
        f.account().uploadPicture([] { return std::optional<QByteArray>("png"); });
        QVERIFY(f.store->scope()->avatarUploading());
        SOON_VERIFY(!f.store->scope()->avatarUploading());
        QCOMPARE(f.account().pictureError(), u"The picture is larger than 5 MiB."_s);
        f.backend.answer(avatarPost, R"({"data":{"url":"/pictures/ada.png"}})");
        f.account().retryPicture();
        SOON_COMPARE(f.store->scope()->userAvatarURL(), u"/pictures/ada.png"_s);
        QCOMPARE(f.account().pictureError(), QString());
        QVERIFY(!f.account().pictureRepeatable());
        QVERIFY(f.backend.requests(avatarPost).last().raw.contains("Content-Type: image/png"));

        // A reply that names no picture leaves the one of before, and the profile is asked.
        f.backend.answer(avatarPost, "{}");
        f.backend.answer(profileGet, R"({"avatar_url":"/pictures/new.png"})");
        f.account().uploadPicture([] { return std::optional<QByteArray>("png"); });
        SOON_COMPARE(f.store->scope()->userAvatarURL(), u"/pictures/new.png"_s);
        f.account().uploadPicture([] { return std::optional<QByteArray>(); });
        SOON_VERIFY(!f.account().pictureError().isEmpty());
        QVERIFY(!f.account().pictureRepeatable());
    }
};

QTEST_GUILESS_MAIN(AccountTest)
#include "AccountTest.moc"
