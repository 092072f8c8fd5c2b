#pragma once

#include "base/Cancel.h"
#include "base/Work.h"
#include "store/Enums.h"

#include <QObject>
#include <QProperty>

namespace kiv::net {
struct MeUser;
}

namespace kiv::store {

class AppStore;

/// An account that a workspace offers for a look around.
struct SampleAccount {
    QString email;
    QString password;
};

/// Signing in, signing up and signing out.
class SessionRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::AuthSheetMode authSheet READ authSheet NOTIFY authSheetChanged)
    Q_PROPERTY(QString authError READ authError NOTIFY authErrorChanged)
    Q_PROPERTY(kiv::store::AuthField errorField READ errorField NOTIFY errorFieldChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    Q_PROPERTY(bool sampleOffered READ sampleOffered NOTIFY sampleOfferedChanged)
public:
    explicit SessionRoom(AppStore &store);

    AuthSheetMode authSheet() const { return m_authSheet; }
    QString authError() const { return m_authError; }
    /// What the error is about; None for a failure that neither field can mend.
    AuthField errorField() const { return m_errorField; }
    /// A sign-in is under way.
    bool busy() const { return m_busy; }
    bool sampleOffered() const { return m_sampleOffered; }
    /// Somebody is signed in, and what there is to talk to is still being loaded.
    bool isEntering() const { return m_entering; }

    Q_INVOKABLE void submitAuth(const QString &email, const QString &password, bool signup);
    Q_INVOKABLE void trySample();
    Q_INVOKABLE void openAuthSheet(kiv::store::AuthSheetMode mode);
    Q_INVOKABLE void closeAuthSheet();
    Q_INVOKABLE void logout();

    /// Asks the backend who is signed in.
    void boot();
    void enterLive(const net::MeUser &user);
    void resetToAnon();
    /// Whether the backend says that nobody is signed in any more; not when it cannot be asked.
    QCoro::Task<bool> isOver(Cancel cancel);
    /// The backend has ended the session: what is not sent is kept, and the person signs in again.
    void expire();
    void offerSample(const SampleAccount &account);
    /// There is no backend to talk to, and why.
    void reportUnavailable(const QString &why);

Q_SIGNALS:
    void authSheetChanged();
    void authErrorChanged();
    void errorFieldChanged();
    /// An attempt to sign in has failed, perhaps with the same error as the one before.
    void authFailed();
    void busyChanged();
    void sampleOfferedChanged();

private:
    QCoro::Task<void> checkSession(Cancel cancel);
    QCoro::Task<void> bootLive(Cancel cancel);
    QCoro::Task<void> authenticate(QString email, QString password, bool signup, Cancel cancel);
    void reportError(AuthField field, const QString &text);
    QCoro::Task<void> signOut(Cancel cancel);

    AppStore &m_store;
    SampleAccount m_sample;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SessionRoom, AuthSheetMode, m_authSheet,
                                         AuthSheetMode::Closed, &SessionRoom::authSheetChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SessionRoom, QString, m_authError, &SessionRoom::authErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SessionRoom, AuthField, m_errorField, AuthField::None,
                                         &SessionRoom::errorFieldChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SessionRoom, bool, m_busy, &SessionRoom::busyChanged)
    Q_OBJECT_BINDABLE_PROPERTY(SessionRoom, bool, m_sampleOffered,
                               &SessionRoom::sampleOfferedChanged)
    bool m_entering = false;
    Work m_check;
    Work m_auth;
    Work m_live;
};

} // namespace kiv::store
