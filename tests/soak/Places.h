#pragma once

#include "store/ScopeRoom.h"

namespace kiv::soak {

/// Somewhere to talk; without ids everybody.
struct Place {
    QString project;
    QString agent;
};

/// A few places of each kind, so that they are come back to.
inline QList<Place> places(const store::ScopeRoom &scope) {
    QList<Place> found{{}};
    for (const store::Project &project :
         scope.projects().first(std::min<qsizetype>(scope.projects().size(), 2))) {
        found.append({.project = project.id, .agent = {}});
        if (!project.agents.isEmpty())
            found.append({project.id, project.agents.constFirst().id});
    }
    for (const store::Agent &agent : scope.standaloneAgents()) {
        if (found.size() < 8)
            found.append({.project = {}, .agent = agent.id});
    }
    return found;
}

inline void enter(store::ScopeRoom &scope, const Place &place) {
    if (!place.project.isEmpty() && place.agent.isEmpty())
        scope.enterProject(place.project);
    else if (!place.project.isEmpty())
        scope.pickAgent(place.project, place.agent);
    else if (!place.agent.isEmpty())
        scope.pickStandaloneAgent(place.agent);
    else
        scope.pickGlobal();
}

} // namespace kiv::soak
