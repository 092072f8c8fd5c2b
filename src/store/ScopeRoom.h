#pragma once

#include "base/Cancel.h"
#include "net/ChatTarget.h"
#include "store/Enums.h"
#include "store/RailModel.h"
#include "store/Scope.h"

#include <QCoroTask>
#include <QObject>
#include <QProperty>

#include <optional>

namespace kiv::net {
struct MeUser;
}

namespace kiv::store {

class AppStore;

/// Who is signed in, what there is to talk to, and which of it is selected.
/// Empty ids mean "none".
class ScopeRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::AuthPhase auth READ auth NOTIFY authChanged)
    Q_PROPERTY(QString project READ project NOTIFY projectChanged)
    Q_PROPERTY(QString projectName READ projectName NOTIFY projectNameChanged)
    Q_PROPERTY(QString agent READ agent NOTIFY agentChanged)
    Q_PROPERTY(QString userName READ userName NOTIFY userNameChanged)
    Q_PROPERTY(QString userEmail READ userEmail NOTIFY userEmailChanged)
    Q_PROPERTY(QString userAvatarURL READ userAvatarURL NOTIFY userAvatarURLChanged)
    Q_PROPERTY(QString userInitials READ userInitials NOTIFY userInitialsChanged)
    Q_PROPERTY(bool avatarUploading READ avatarUploading NOTIFY avatarUploadingChanged)
    Q_PROPERTY(QString scopeName READ scopeName NOTIFY scopeNameChanged)
    Q_PROPERTY(QString scopeDetail READ scopeDetail NOTIFY scopeDetailChanged)
    Q_PROPERTY(kiv::store::ScopeKind scopeKind READ scopeKind NOTIFY scopeKindChanged)
    Q_PROPERTY(QString scopeColorHex READ scopeColorHex NOTIFY scopeColorHexChanged)
    Q_PROPERTY(QList<QString> starters READ starters NOTIFY startersChanged)
    Q_PROPERTY(kiv::store::RailView *rail READ rail CONSTANT)
    Q_PROPERTY(kiv::store::ScopeChoices *choices READ choices CONSTANT)
public:
    explicit ScopeRoom(AppStore &store);

    AuthPhase auth() const { return m_auth; }
    QList<Project> projects() const { return m_projects; }
    QList<Agent> standaloneAgents() const { return m_standaloneAgents; }
    QString project() const { return m_project; }
    /// The name of the current project, also while one of its agents is selected.
    QString projectName() const { return m_projectName; }
    QString agent() const { return m_agent; }
    QString kivID() const { return m_kivID; }
    QString userName() const { return m_userName; }
    QString userEmail() const { return m_userEmail; }
    QString userAvatarURL() const { return m_userAvatarURL; }
    QString userInitials() const { return m_userInitials; }
    bool avatarUploading() const { return m_avatarUploading; }
    RailView *rail() { return &m_railView; }
    ScopeChoices *choices() { return &m_choices; }

    std::optional<Project> currentProject() const;
    std::optional<Agent> currentAgent() const;
    QString scopeName() const { return m_scopeName; }
    /// The line beside the scope's name: a count, a project's subtitle or an agent's role.
    QString scopeDetail() const { return m_scopeDetail; }
    ScopeKind scopeKind() const { return m_scopeKind; }
    /// Empty for KIV.
    QString scopeColorHex() const { return m_scopeColorHex; }
    /// Questions to begin a conversation with; none while signed out.
    QList<QString> starters() const { return m_starters; }
    /// Where text is sent and which chat is streamed; nothing while signed out.
    std::optional<net::ChatTarget> chatTarget() const;

    bool hasProject(const QString &id) const;
    /// The project that has this agent, empty for one that stands alone; nothing when the rail has
    /// no such agent.
    std::optional<QString> homeOf(const QString &agentID) const;

    Q_INVOKABLE void pickGlobal();
    /// Acts in a snapshot run only; see enterProject.
    Q_INVOKABLE void pickProject(const QString &id);
    /// The rail's own selection of a project room.
    Q_INVOKABLE void enterProject(const QString &id);
    Q_INVOKABLE void pickAgent(const QString &projectID, const QString &agentID);
    Q_INVOKABLE void pickStandaloneAgent(const QString &id);
    /// Selects an agent where the rail has it; false when it is nowhere there.
    bool enterAgent(const QString &id);
    /// Selects what a row of the rail stands for.
    Q_INVOKABLE void pickEntry(kiv::store::RailRow kind, const QString &projectID,
                               const QString &entryID);
    Q_INVOKABLE void toggleExpanded(const QString &projectID);

    /// Takes the user over and empties the rail of the one before.
    void adopt(const net::MeUser &user);
    /// A project whose members do not come keeps those of before; the rail is published all the
    /// same, and the failure thrown then. The selected agent stays selected where it is now.
    QCoro::Task<void> reloadRail(Cancel cancel);
    QCoro::Task<void> resolveKiv(Cancel cancel);
    QCoro::Task<void> refreshUserAvatarIfNeeded(Cancel cancel);
    /// The person has another name or picture from now on; an empty name leaves the address.
    void setUserName(const QString &name);
    void setUserAvatar(const QString &url) { m_userAvatarURL = url; }
    void setAvatarUploading(bool uploading) { m_avatarUploading = uploading; }
    void restoreScope();
    void startPersisting();
    /// Forgets the signed-in person and everything of theirs; the saved scope stays.
    void clear();
    /// Nobody is signed in (any more).
    void setSignedOut();
    /// The language has changed.
    void retranslate();

Q_SIGNALS:
    void authChanged();
    void projectsChanged();
    void standaloneAgentsChanged();
    void projectChanged();
    void projectNameChanged();
    void agentChanged();
    void kivIDChanged();
    void userNameChanged();
    void userEmailChanged();
    void userAvatarURLChanged();
    void userInitialsChanged();
    void avatarUploadingChanged();
    void scopeNameChanged();
    void scopeDetailChanged();
    void scopeKindChanged();
    void scopeColorHexChanged();
    void startersChanged();
    void retranslated();

private:
    struct Selection {
        QString project;
        QString agent;
    };
    void select(const QString &project, const QString &agent);
    void saveScope();
    Selection storedScope() const;
    QString describeScope() const;

    AppStore &m_store;
    bool m_isPersisting = false;
    RailModel m_rail;
    RailView m_railView;
    ScopeChoices m_choices;

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(ScopeRoom, AuthPhase, m_auth, AuthPhase::Unknown,
                                         &ScopeRoom::authChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QList<Project>, m_projects, &ScopeRoom::projectsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QList<Agent>, m_standaloneAgents,
                               &ScopeRoom::standaloneAgentsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_project, &ScopeRoom::projectChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_projectName, &ScopeRoom::projectNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_agent, &ScopeRoom::agentChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_kivID, &ScopeRoom::kivIDChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_userName, &ScopeRoom::userNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_userEmail, &ScopeRoom::userEmailChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_userAvatarURL,
                               &ScopeRoom::userAvatarURLChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_userInitials, &ScopeRoom::userInitialsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, bool, m_avatarUploading,
                               &ScopeRoom::avatarUploadingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_scopeName, &ScopeRoom::scopeNameChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_scopeDetail, &ScopeRoom::scopeDetailChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(ScopeRoom, ScopeKind, m_scopeKind, ScopeKind::Kiv,
                                         &ScopeRoom::scopeKindChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QString, m_scopeColorHex,
                               &ScopeRoom::scopeColorHexChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ScopeRoom, QStringList, m_starters, &ScopeRoom::startersChanged)
};

} // namespace kiv::store
