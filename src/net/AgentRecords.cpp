#include "net/AgentRecords.h"

namespace kiv::net {

std::optional<QString> AgentCreateResult::agentID() const {
    if (id)
        return id;
    return agent ? agent->id : std::nullopt;
}

} // namespace kiv::net
