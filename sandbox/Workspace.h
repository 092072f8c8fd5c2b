#pragma once

#include "answers/Answer.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace kiv::sandbox {

class Database;

/// One agent, as the chat needs it.
struct AgentRecord {
    QString id;
    QString name;
    QString status;
    QString kind; ///< "agent", "orchestrator" or "team"
    QString slug; ///< its project; empty for one that stands alone
};

/// Whose data the agent answers from.
Scope scopeOf(const QString &account, const AgentRecord &agent);

/// What the new-agent form sends.
struct AgentDraft {
    QString name;
    QString role;
    QString description;
    QString status;
    QString slug; ///< empty for none
};

/// The projects, agents and events of each account. Everything is looked up under its account, so
/// that nobody reaches another's.
class Workspace {
public:
    explicit Workspace(Database &database) : m_database(database) {}

    QJsonArray projects(const QString &account);
    /// Throws Refusal when the label is blank or too long.
    QJsonObject createProject(const QString &account, const QString &label, const QString &brief);
    /// The project's label; throws Refusal (404) when there is no such project.
    QString projectLabel(const QString &account, const QString &slug);

    QJsonArray members(const QString &account, const QString &slug);
    /// Newest first.
    QJsonArray events(const QString &account, const QString &slug, int limit);

    QJsonArray agents(const QString &account);
    /// The reply of the creation call; throws Refusal when the name is blank or too long.
    QJsonObject createAgent(const QString &account, const AgentDraft &draft);
    /// Throws Refusal (404) when there is no such agent.
    AgentRecord agent(const QString &account, const QString &id);
    QString orchestrator(const QString &account);

private:
    Database &m_database;
};

} // namespace kiv::sandbox
