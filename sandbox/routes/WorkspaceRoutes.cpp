#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

Reply createProject(Services &services, const Call &call) {
    const QJsonObject body = call.json();
    const QJsonObject project = services.workspace.createProject(
        call.account, stringMember(body, "label"_L1), stringMember(body, "brief"_L1));
    return Reply::json({{u"project"_s, project}}, 201);
}

Reply createAgent(Services &services, const Call &call) {
    const QJsonObject body = call.json();
    const AgentDraft draft{
        stringMember(body, "name"_L1),         stringMember(body, "role"_L1),
        stringMember(body, "description"_L1),  stringMember(body, "status"_L1, u"active"_s),
        stringMember(body, "project_slug"_L1),
    };
    return Reply::json(services.workspace.createAgent(call.account, draft), 201);
}

} // namespace

void addWorkspaceRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    Workspace &workspace = services.workspace;
    router.get("/api/v2/projects", Access::SignedIn, [&workspace](const Call &call) {
        return Reply::json({{u"projects"_s, workspace.projects(call.account)}});
    });
    router.post("/api/v2/projects", Access::SignedIn,
                [&services](const Call &call) { return createProject(services, call); });
    router.get("/api/v2/projects/([^/]+)/members", Access::SignedIn,
               [&workspace](const Call &call) {
                   return Reply::list(workspace.members(call.account, call.segment(1)));
               });
    router.get("/api/v2/projects/([^/]+)/events", Access::SignedIn, [&workspace](const Call &call) {
        const int limit = call.number("limit", 50, 1, 200);
        return Reply::json({{u"events"_s, workspace.events(call.account, call.segment(1), limit)}});
    });
    router.get("/api/v2/custom-agents", Access::SignedIn, [&workspace](const Call &call) {
        return Reply::json({{u"agents"_s, workspace.agents(call.account)}});
    });
    router.post("/api/v2/custom-agents", Access::SignedIn,
                [&services](const Call &call) { return createAgent(services, call); });
    router.get("/api/v2/orchestrator", Access::SignedIn, [&workspace](const Call &call) {
        return Reply::json({{u"agent_id"_s, workspace.orchestrator(call.account)}});
    });
}

} // namespace kiv::sandbox
