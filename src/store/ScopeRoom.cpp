#include "store/ScopeRoom.h"

#include "base/BaseUrl.h"
#include "canvas/Suggestions.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"

#include <QSettings>

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

const QString projectKey = u"zandor.project"_s;
const QString agentKey = u"zandor.agent"_s;

bool isGone(const std::optional<QString> &status) {
    return status == u"archived"_s || status == u"hidden"_s;
}

Agent agentAt(qsizetype position, const QString &id, const std::optional<QString> &name,
              const std::optional<QString> &role) {
    return {id, name.value_or(u"Agent"_s), role.value_or(u"agent"_s), railColor(position)};
}

/// The agents of a roster that show and are not in `seen`, in the roster's order; adds them to it.
QList<Agent> visibleMembers(const QList<net::ProjectMember> &roster, QSet<QString> &seen) {
    QList<Agent> agents;
    for (const net::ProjectMember &member : roster) {
        if (member.memberKind == u"team"_s || !member.agent)
            continue;
        const auto &agent = *member.agent;
        if ((!agent.id.isEmpty() && isGone(agent.status)) || seen.contains(agent.id))
            continue;
        seen.insert(agent.id);
        agents.append(agentAt(agents.size(), agent.id, agent.name, agent.role));
    }
    return agents;
}

QString initialsOf(const QString &name, const QString &email) {
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty() || name == email)
        return email.first(std::min<qsizetype>(2, email.size())).toUpper();
    const QString last = words.size() > 1 ? words.last().first(1) : QString();
    return (words.first().first(1) + last).toUpper();
}

const Agent *findAgent(const QList<Agent> &agents, const QString &id) {
    const auto found = std::ranges::find(agents, id, &Agent::id);
    return found == agents.end() ? nullptr : &*found;
}

/// Writes one key of the scope, or removes it; nothing while nobody is signed in.
void save(AppStore &store, const QString &key, const QString &value) {
    if (store.scope()->auth() != AuthPhase::SignedIn)
        return;
    if (value.isEmpty())
        store.settings().remove(key);
    else
        store.settings().setValue(key, value);
}

} // namespace

ScopeRoom::ScopeRoom(AppStore &store) : m_store(store), m_railView(&m_rail), m_choices(&m_rail) {
    m_scopeName.setBinding([this] {
        if (const auto agent = currentAgent())
            return agent->name;
        const auto project = currentProject();
        return project ? project->name : u"KIV"_s;
    });
    m_projectName.setBinding([this] {
        const auto project = currentProject();
        return project ? project->name : QString();
    });
    m_scopeKind.setBinding([this] {
        if (currentAgent())
            return ScopeKind::Agent;
        return currentProject() ? ScopeKind::Project : ScopeKind::Kiv;
    });
    m_scopeColorHex.setBinding([this] {
        if (const auto agent = currentAgent())
            return agent->colorHex;
        const auto project = currentProject();
        return project ? project->colorHex : QString();
    });
    m_scopeDetail.setBinding([this] { return describeScope(); });
    m_starters.setBinding([this] {
        if (m_auth.value() != AuthPhase::SignedIn)
            return QStringList();
        const auto agent = currentAgent();
        const auto project = currentProject();
        return canvas::Suggestions::chips(project ? std::optional(project->name) : std::nullopt,
                                          agent ? std::optional(agent->name) : std::nullopt);
    });
    m_userInitials.setBinding([this] { return initialsOf(m_userName, m_userEmail); });
}

std::optional<Project> ScopeRoom::currentProject() const {
    const QString id = m_project;
    const QList<Project> projects = m_projects;
    const auto found = std::ranges::find(projects, id, &Project::id);
    if (id.isEmpty() || found == projects.end())
        return std::nullopt;
    return *found;
}

std::optional<Agent> ScopeRoom::currentAgent() const {
    const QString id = m_agent;
    const QList<Agent> standalone = m_standaloneAgents;
    if (id.isEmpty())
        return std::nullopt;
    const auto project = currentProject();
    if (project) {
        if (const Agent *agent = findAgent(project->agents, id))
            return *agent;
    }
    if (const Agent *agent = findAgent(standalone, id))
        return *agent;
    return std::nullopt;
}

QString ScopeRoom::describeScope() const {
    if (const auto agent = currentAgent())
        return agent->role;
    if (const auto project = currentProject())
        return project->meta;
    const QList<Project> projects = m_projects;
    qsizetype agents = m_standaloneAgents.value().size();
    for (const Project &project : projects)
        agents += project.agents.size();
    if (projects.isEmpty() && agents == 0)
        return {};
    return tr("%1, %2", "projects, agents")
        .arg(tr("%Ln project(s)", nullptr, static_cast<int>(projects.size())),
             tr("%Ln agent(s)", nullptr, static_cast<int>(agents)));
}

void ScopeRoom::retranslate() {
    m_scopeDetail.setBinding([this] { return describeScope(); });
    m_rail.retranslate();
    Q_EMIT retranslated();
}

std::optional<net::ChatTarget> ScopeRoom::chatTarget() const {
    if (m_auth.value() != AuthPhase::SignedIn)
        return std::nullopt;
    if (!m_agent.value().isEmpty())
        return net::ChatTarget::agent(m_agent);
    if (!m_project.value().isEmpty())
        return net::ChatTarget::project(m_project);
    if (!m_kivID.value().isEmpty())
        return net::ChatTarget::agent(m_kivID);
    return std::nullopt;
}

void ScopeRoom::pickGlobal() {
    select({}, {});
}

void ScopeRoom::pickProject(const QString &id) {
    if (m_store.isSnapshot())
        select(id, {});
}

void ScopeRoom::enterProject(const QString &id) {
    select(id, {});
}

void ScopeRoom::pickAgent(const QString &projectID, const QString &agentID) {
    select(projectID, agentID);
}

void ScopeRoom::pickStandaloneAgent(const QString &id) {
    select({}, id);
}

bool ScopeRoom::enterAgent(const QString &id) {
    const auto home = homeOf(id);
    if (home)
        select(*home, id);
    return home.has_value();
}

bool ScopeRoom::hasProject(const QString &id) const {
    const QList<Project> projects = m_projects;
    return std::ranges::find(projects, id, &Project::id) != projects.end();
}

std::optional<QString> ScopeRoom::homeOf(const QString &agentID) const {
    if (agentID.isEmpty())
        return std::nullopt;
    const QList<Project> projects = m_projects;
    for (const Project &project : projects) {
        if (findAgent(project.agents, agentID))
            return project.id;
    }
    if (findAgent(m_standaloneAgents, agentID))
        return QString();
    return std::nullopt;
}

void ScopeRoom::select(const QString &project, const QString &agent) {
    if (project == m_project.value() && agent == m_agent.value())
        m_store.canvas()->keepScene();
    m_store.resetSurfaces();
    Qt::beginPropertyUpdateGroup();
    m_project = project;
    m_agent = agent;
    Qt::endPropertyUpdateGroup();
    // Also what was chosen before the saved scope was restored takes its place.
    saveScope();
    m_rail.select(project, agent);
    if (m_auth.value() == AuthPhase::SignedIn)
        m_store.chat()->connectChat();
}

void ScopeRoom::pickEntry(RailRow kind, const QString &projectID, const QString &entryID) {
    switch (kind) {
    case RailRow::Kiv:
        return pickGlobal();
    case RailRow::Project:
        return enterProject(entryID);
    case RailRow::Agent:
        return projectID.isEmpty() ? pickStandaloneAgent(entryID) : pickAgent(projectID, entryID);
    case RailRow::SectionLabel:
        return;
    }
}

void ScopeRoom::toggleExpanded(const QString &projectID) {
    m_rail.toggleExpanded(projectID);
}

void ScopeRoom::adopt(const net::MeUser &user) {
    m_userName = user.displayName().value_or(QString());
    m_userEmail = user.email.value_or(QString());
    setUserAvatar(pictureAddress(user.avatarUrl.value_or(QString())));
    m_projects = QList<Project>();
    m_standaloneAgents = QList<Agent>();
    m_rail.setEntries({}, {});
    m_auth = AuthPhase::SignedIn;
}

QCoro::Task<void> ScopeRoom::reloadRail(Cancel cancel) {
    net::APIClient *client = &m_store.net();
    const net::ProjectsList list = co_await net::KivAPI::projects(client, cancel);
    std::vector<QCoro::Task<QList<net::ProjectMember>>> rosters;
    for (const net::ProjectSummary &summary : list.projects)
        rosters.push_back(net::KivAPI::projectRoster(client, summary.slug, cancel));

    const auto agentsBefore = [before = m_projects.value()](const QString &id) {
        const auto found = std::ranges::find(before, id, &Project::id);
        return found == before.end() ? QList<Agent>() : found->agents;
    };
    QList<Project> projects;
    QSet<QString> placed;
    QSet<QString> unknown; // projects that no member is known of
    std::exception_ptr failure;
    for (size_t position = 0; position < rosters.size(); ++position) {
        const auto &summary = list.projects.at(static_cast<qsizetype>(position));
        Project project;
        project.id = summary.slug;
        project.name = summary.label.value_or(summary.name.value_or(summary.slug));
        try {
            project.agents = visibleMembers(co_await rosters[position], placed);
        } catch (const std::exception &error) {
            cancel.throwIfRequested();
            if (net::isUnauthorized(error))
                throw;
            // One project does not hide the others.
            failure = std::current_exception();
            project.agents = agentsBefore(summary.slug);
            if (project.agents.isEmpty())
                unknown.insert(summary.slug);
            for (const Agent &agent : std::as_const(project.agents))
                placed.insert(agent.id);
        }
        project.colorHex = railColor(static_cast<qsizetype>(position));
        projects.append(project);
    }

    const net::AgentsList agents = co_await net::KivAPI::agents(client, cancel);
    // Of a project whose members are not known, the one who is talked to is.
    const Selection wanted =
        m_agent.value().isEmpty() ? storedScope() : Selection{m_project, m_agent};
    QList<Agent> standalone;
    for (const net::AgentSummary &agent : agents.agents) {
        if (isGone(agent.status) || placed.contains(agent.id))
            continue;
        const bool isAtHome = agent.id == wanted.agent && unknown.contains(wanted.project);
        const auto home = std::ranges::find(projects, wanted.project, &Project::id);
        QList<Agent> &place = isAtHome ? home->agents : standalone;
        place.append(agentAt(place.size(), agent.id, agent.name, agent.role));
    }
    for (Project &project : projects)
        project.meta = QString::number(project.agents.size()) + u" agents · active"_s;
    Qt::beginPropertyUpdateGroup();
    m_projects = projects;
    m_standaloneAgents = standalone;
    const auto home = homeOf(m_agent);
    const bool hasMoved = home && *home != m_project.value();
    if (hasMoved)
        m_project = *home;
    Qt::endPropertyUpdateGroup();
    m_rail.setEntries(projects, standalone);
    if (hasMoved) {
        saveScope();
        m_rail.select(m_project, m_agent);
    }
    if (failure)
        std::rethrow_exception(failure);
}

QCoro::Task<void> ScopeRoom::resolveKiv(Cancel cancel) {
    const net::OrchestratorInfo info =
        co_await net::KivAPI::orchestrator(&m_store.net(), std::move(cancel));
    m_kivID = info.agentID.value_or(QString());
}

QCoro::Task<void> ScopeRoom::refreshUserAvatarIfNeeded(Cancel cancel) {
    if (!m_userAvatarURL.value().isEmpty())
        co_return;
    try {
        const auto profile = co_await net::KivAPI::profile(&m_store.net(), cancel);
        setUserAvatar(pictureAddress(profile.avatarUrl.value_or(QString())));
    } catch (const std::exception &) {
        // The initials stay in its place.
        cancel.throwIfRequested();
    }
}

void ScopeRoom::setUserName(const QString &name) {
    const QString shown = name.trimmed();
    m_userName = shown.isEmpty() ? m_userEmail.value() : shown;
}

void ScopeRoom::restoreScope() {
    if (m_store.isSnapshot())
        return;
    const auto [storedProject, storedAgent] = storedScope();
    if (const auto home = homeOf(storedAgent)) {
        m_project = *home;
        m_agent = storedAgent;
        saveScope();
    } else {
        // What is saved stays: it may only not be there yet.
        m_project = hasProject(storedProject) ? storedProject : QString();
        m_agent = QString();
    }
    m_rail.select(m_project, m_agent);
}

ScopeRoom::Selection ScopeRoom::storedScope() const {
    return {m_store.settings().value(projectKey).toString(),
            m_store.settings().value(agentKey).toString()};
}

void ScopeRoom::startPersisting() {
    m_isPersisting = true;
}

void ScopeRoom::saveScope() {
    if (!m_isPersisting)
        return;
    save(m_store, projectKey, m_project);
    save(m_store, agentKey, m_agent);
}

void ScopeRoom::setSignedOut() {
    m_auth = AuthPhase::Anon;
}

void ScopeRoom::clear() {
    m_auth = AuthPhase::Anon;
    m_userName = QString();
    m_userEmail = QString();
    m_userAvatarURL = QString();
    m_avatarUploading = false;
    m_kivID = QString();
    m_projects = QList<Project>();
    m_standaloneAgents = QList<Agent>();
    m_project = QString();
    m_agent = QString();
    m_rail.setEntries({}, {});
    m_rail.select({}, {});
}

} // namespace kiv::store
