#pragma once

#include "base/Clock.h"
#include "base/Work.h"
#include "store/AccountBudget.h"
#include "store/AccountField.h"
#include "store/FileChooser.h"
#include "store/PickedFile.h"

#include <QObject>
#include <QProperty>

namespace kiv::store {

class AppStore;

/// The account of the signed-in person: the profile field by field, plan and wallet, picture and
/// password. What was entered survives leaving the pages, until the person signs out.
class AccountRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::LoadState profileLoad READ profileLoad NOTIFY profileLoadChanged)
    Q_PROPERTY(QString profileError READ profileError NOTIFY profileErrorChanged)
    Q_PROPERTY(kiv::store::LoadState budgetLoad READ budgetLoad NOTIFY budgetLoadChanged)
    Q_PROPERTY(QString budgetError READ budgetError NOTIFY budgetErrorChanged)
    Q_PROPERTY(kiv::store::AccountBudget budget READ budget NOTIFY budgetChanged)
    /// The state of all fields in one: what is worst counts.
    Q_PROPERTY(kiv::store::SaveState saveState READ saveState NOTIFY saveStateChanged)
    Q_PROPERTY(bool leaveAsked READ leaveAsked NOTIFY leaveAskedChanged)
    Q_PROPERTY(QString pictureError READ pictureError NOTIFY pictureErrorChanged)
    Q_PROPERTY(bool pictureRepeatable READ pictureRepeatable NOTIFY pictureErrorChanged)
    Q_PROPERTY(bool passwordBusy READ passwordBusy NOTIFY passwordBusyChanged)
    Q_PROPERTY(QString passwordError READ passwordError NOTIFY passwordErrorChanged)
    Q_PROPERTY(
        kiv::store::PasswordFault passwordFault READ passwordFault NOTIFY passwordFaultChanged)
    Q_PROPERTY(QString passwordNote READ passwordNote NOTIFY passwordNoteChanged)
public:
    explicit AccountRoom(AppStore &store);

    LoadState profileLoad() const { return m_profileLoad; }
    QString profileError() const { return m_profileError; }
    LoadState budgetLoad() const { return m_budgetLoad; }
    QString budgetError() const { return m_budgetError; }
    AccountBudget budget() const { return m_budget; }
    SaveState saveState() const { return m_saveState; }
    bool leaveAsked() const { return m_leaveAsked; }
    QString pictureError() const { return m_pictureError; }
    /// Whether the picture that failed can be sent again.
    bool pictureRepeatable() const { return bool(m_picture); }
    bool passwordBusy() const { return m_passwordBusy; }
    QString passwordError() const { return m_passwordError; }
    PasswordFault passwordFault() const { return m_passwordFault; }
    QString passwordNote() const { return m_passwordNote; }

    /// The chooser outlives the room; without one no picture can be picked.
    void setChooser(FileChooser *chooser) { m_chooser = chooser; }

    /// The field with this key on the wire; null without one.
    Q_INVOKABLE kiv::store::AccountField *field(const QString &key) const;

    Q_INVOKABLE void loadProfile();
    Q_INVOKABLE void loadBudget();

    /// Saves what was typed and closes the pages; asks first when something cannot be saved, or
    /// is not meant to be saved by leaving.
    Q_INVOKABLE void leave();
    /// The same, and signs out.
    Q_INVOKABLE void signOut();
    /// The window is about to close: true when it can close now. Otherwise windowReleased()
    /// follows, once what was typed is saved or the person has dropped it. Being asked again while
    /// a save is under way gives in.
    Q_INVOKABLE bool releaseWindow();
    /// Closes the pages unless something is not saved. Asks nothing: the person did not leave.
    void giveWay();
    Q_INVOKABLE void leaveAnyway();
    Q_INVOKABLE void stay();

    /// Lets the person choose a picture; see pictureChosen().
    Q_INVOKABLE void pickPicture();
    /// What was picked is no picture, or was not understood.
    void refusePicture(const QString &why);
    /// `content` is a picture of ours in PNG.
    void uploadPicture(PickedFile::Content content);
    Q_INVOKABLE void retryPicture();

    Q_INVOKABLE void changePassword(const QString &current, const QString &changed,
                                    const QString &repeated);

    /// Forgets everything of the person.
    void clear();

Q_SIGNALS:
    void profileLoadChanged();
    void profileErrorChanged();
    void budgetLoadChanged();
    void budgetErrorChanged();
    void budgetChanged();
    void saveStateChanged();
    void leaveAskedChanged();
    void pictureErrorChanged();
    void passwordBusyChanged();
    void passwordErrorChanged();
    void passwordFaultChanged();
    void passwordNoteChanged();
    /// The person has chosen the picture at `file`.
    void pictureChosen(const QUrl &file);
    void passwordChanged();
    void windowReleased();
    /// Something could not be saved after the pages were left.
    void failedElsewhere(const QString &why);

private:
    enum class Leaving { No, Pages, Session, Window };

    void addField(const QString &key, const QVariant &empty);
    void look();
    bool isUnsaved() const;
    bool isSaving() const;
    void commitTyped();
    void leaveFor(Leaving leaving);
    void finishLeaving();
    QCoro::Task<void> readProfile(Cancel cancel);
    QCoro::Task<void> readBudget(Cancel cancel);
    QCoro::Task<void> sendPicture(PickedFile::Content content, Cancel cancel);
    QCoro::Task<void> sendPassword(QString current, QString changed, QString repeated,
                                   Cancel cancel);

    AppStore &m_store;
    FileChooser *m_chooser = nullptr;
    bool m_choosing = false;
    QHash<QString, AccountField *> m_fields; ///< children
    Leaving m_leaving = Leaving::No;
    PickedFile::Content m_picture; ///< that could not be sent
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, LoadState, m_profileLoad,
                               &AccountRoom::profileLoadChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, QString, m_profileError,
                               &AccountRoom::profileErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, LoadState, m_budgetLoad,
                               &AccountRoom::budgetLoadChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, QString, m_budgetError,
                               &AccountRoom::budgetErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, AccountBudget, m_budget, &AccountRoom::budgetChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, SaveState, m_saveState, &AccountRoom::saveStateChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, bool, m_leaveAsked, &AccountRoom::leaveAskedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, QString, m_pictureError,
                               &AccountRoom::pictureErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, bool, m_passwordBusy, &AccountRoom::passwordBusyChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, QString, m_passwordError,
                               &AccountRoom::passwordErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, PasswordFault, m_passwordFault,
                               &AccountRoom::passwordFaultChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AccountRoom, QString, m_passwordNote,
                               &AccountRoom::passwordNoteChanged)
    Clock::Timer m_patience; ///< with a save that holds the window open
    Work m_profileWork;
    Work m_budgetWork;
    Work m_pictureWork;
    Work m_passwordWork;
};

} // namespace kiv::store
