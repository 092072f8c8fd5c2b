#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

void addVoiceRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.get("/api/v2/voice/capability", Access::SignedIn, [](const Call &) {
        return Reply::json(
            QJsonObject{{u"available"_s, false}, {u"reason"_s, u"not_configured"_s}});
    });
    router.get("/api/v2/voice/calls", Access::SignedIn, [&services](const Call &call) {
        const QString agent = QString::fromStdString(call.request.get_param_value("agent_id"));
        services.workspace.agent(call.account, agent);
        return Reply::json({{u"calls"_s, QJsonArray()}});
    });
    router.post("/api/v2/voice/session", Access::SignedIn, [](const Call &) -> Reply {
        throw Refusal(503, u"Voice calls are not set up on this server."_s, u"voice_unavailable"_s);
    });
}

} // namespace kiv::sandbox
