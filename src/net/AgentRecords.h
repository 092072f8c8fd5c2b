#pragma once

#include "net/Record.h"

#include <QList>
#include <QString>

namespace kiv::net {

struct AgentSummary {
    QString id;
    std::optional<QString> name;
    std::optional<QString> role;
    std::optional<QString> status;

    friend bool operator==(const AgentSummary &, const AgentSummary &) = default;
};

struct AgentsList {
    QList<AgentSummary> agents;

    friend bool operator==(const AgentsList &, const AgentsList &) = default;
};

/// Which agent stands behind the orchestrator persona.
struct OrchestratorInfo {
    std::optional<QString> agentID;

    friend bool operator==(const OrchestratorInfo &, const OrchestratorInfo &) = default;
};

/// Reply to creating an agent.
struct AgentCreateResult {
    struct IdOnly {
        std::optional<QString> id;

        friend bool operator==(const IdOnly &, const IdOnly &) = default;
    };

    std::optional<QString> id;
    std::optional<IdOnly> agent;
    std::optional<QList<QString>> projectWarnings; ///< project links that could not be made

    /// The new agent's id, wherever the reply put it.
    std::optional<QString> agentID() const;

    friend bool operator==(const AgentCreateResult &, const AgentCreateResult &) = default;
};

// clang-format off
template <>
inline constexpr auto tableOf<AgentSummary> = recordTable("AgentSummary",
    Field{&AgentSummary::id, "id"},
    Field{&AgentSummary::name, "name"},
    Field{&AgentSummary::role, "role"},
    Field{&AgentSummary::status, "status"});

template <>
inline constexpr auto tableOf<AgentsList> = recordTable("AgentsList",
    Field{&AgentsList::agents, "agents"});

template <>
inline constexpr auto tableOf<OrchestratorInfo> = recordTable("OrchestratorInfo",
    Field{&OrchestratorInfo::agentID, "agent_id"});

template <>
inline constexpr auto tableOf<AgentCreateResult::IdOnly> = recordTable("AgentCreateResult.IdOnly",
    Field{&AgentCreateResult::IdOnly::id, "id"});

template <>
inline constexpr auto tableOf<AgentCreateResult> = recordTable("AgentCreateResult",
    Field{&AgentCreateResult::id, "id"},
    Field{&AgentCreateResult::agent, "agent"},
    Field{&AgentCreateResult::projectWarnings, "project_warnings"});
// clang-format on

} // namespace kiv::net
