#include "Router.h"
#include "Routes.h"
#include "Services.h"
#include "voice/VoiceServer.h"

#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr int longestCall = 600;
/// No service stands behind it: the media transport of a session is there to fail.
const QString mediaToken = u"media-transport-is-not-served"_s;

struct RefusalText {
    QLatin1StringView code;
    int status;
    QLatin1StringView text;
};

constexpr std::array refusals{
    RefusalText{"insufficient_balance"_L1, 402, "The balance is too low for a call."_L1},
    RefusalText{"call_in_progress"_L1, 409, "A call is already in progress."_L1},
    RefusalText{"rate_limited"_L1, 429, "Rate limit reached: too many calls in a short time."_L1},
    RefusalText{"token_mint_failed"_L1, 502, "The voice provider gave no session."_L1},
    RefusalText{"byok_voice_setup_failed"_L1, 502, "The voice provider refused your own key."_L1},
    RefusalText{"voice_unavailable"_L1, 503, "Voice calls are not set up on this server."_L1},
};

Refusal refusalFor(const QString &code) {
    const auto found = std::ranges::find(refusals, code, &RefusalText::code);
    return found != refusals.end() ? Refusal(found->status, found->text, code)
                                   : Refusal(500, u"The call was refused, as ordered."_s, code);
}

std::optional<Fault> taken(Services &services, const Call &call,
                           std::initializer_list<Fault::Kind> kinds) {
    return services.faults.take(QString::fromStdString(call.request.method),
                                QString::fromStdString(call.request.path), kinds);
}

Reply capability(Services &services, const VoiceServer &voice, const Call &call) {
    QString reason = voice.isAvailable() ? QString() : u"not_configured"_s;
    if (const auto fault = taken(services, call, {Fault::CallUnavailable}))
        reason = fault->code.isEmpty() ? u"voice_unavailable"_s : fault->code;
    if (reason.isEmpty())
        return Reply::json(QJsonObject{{u"available"_s, true}});
    return Reply::json(QJsonObject{{u"available"_s, false}, {u"reason"_s, reason}});
}

Reply session(Services &services, const VoiceServer &voice, const Call &call) {
    const AgentRecord agent =
        services.workspace.agent(call.account, stringMember(call.json(), "agent_id"_L1));
    if (const auto fault = taken(services, call, {Fault::CallRefused}))
        throw refusalFor(fault->code.isEmpty() ? u"token_mint_failed"_s : fault->code);
    if (!voice.isAvailable())
        throw refusalFor(u"voice_unavailable"_s);
    if (agent.status == u"stopped"_s)
        throw Refusal(409, u"%1 is stopped."_s.arg(agent.name), u"work_halted"_s);
    const auto limit = taken(services, call, {Fault::CallLimit});
    const int longest = limit ? limit->value : longestCall;
    const CallDoor door = voice.door(call.origin);
    const MintedCall minted = services.calls.mint(call.account, agent.id, door, longest);
    QJsonObject reply{
        {u"call_id"_s, minted.id},
        {u"max_duration_secs"_s, longest},
        {u"dynamic_variables"_s,
         QJsonObject{{u"agent_name"_s, agent.name}, {u"project"_s, agent.slug}}},
        {u"signed_url"_s, voice.address(door, minted.token, agent.id)},
    };
    const auto transport =
        taken(services, call, {Fault::CallTokenOnly, Fault::CallWithToken, Fault::CallNoTransport});
    if (transport && transport->kind != Fault::CallWithToken)
        reply.remove(u"signed_url"_s);
    if (transport && transport->kind != Fault::CallNoTransport)
        reply.insert(u"token"_s, mediaToken);
    return Reply::json(reply);
}

Reply pastCalls(Services &services, const Call &call) {
    const QString agent = QString::fromStdString(call.request.get_param_value("agent_id"));
    services.workspace.agent(call.account, agent);
    const QJsonArray calls =
        services.calls.list(call.account, agent, call.number("limit", 20, 1, 100));
    return Reply::json({{u"calls"_s, calls}});
}

Reply end(Services &services, VoiceServer &voice, const Call &call) {
    const QString id = stringMember(call.json(), "call_id"_L1);
    services.calls.end(call.account, id);
    voice.hangUp(id);
    return Reply::json(QJsonObject{{u"ok"_s, true}});
}

/// The page asks for it by a path that names its version, so that it never changes.
Reply script(const VoiceServer &voice) {
    QFile file(voice.clientScript());
    if (!file.open(QIODevice::ReadOnly))
        throw Refusal(404, u"The voice client is not here."_s, u"not_found"_s);
    return {.body = file.readAll(),
            .type = "text/javascript; charset=utf-8",
            .headers = {{"Cache-Control", "public, max-age=31536000, immutable"}}};
}

} // namespace

void addVoiceRoutes(Router &router, Services &services, VoiceServer &voice) {
    using Access = Router::Access;
    router.get("/api/v2/voice/capability", Access::SignedIn,
               [&](const Call &call) { return capability(services, voice, call); });
    router.post("/api/v2/voice/session", Access::SignedIn,
                [&](const Call &call) { return session(services, voice, call); });
    router.get("/api/v2/voice/calls", Access::SignedIn,
               [&](const Call &call) { return pastCalls(services, call); });
    router.get("/api/v2/voice/calls/([^/]+)", Access::SignedIn, [&](const Call &call) {
        return Reply::json({{u"call"_s, services.calls.detail(call.account, call.segment(1))}});
    });
    router.post("/api/v2/voice/end", Access::SignedIn,
                [&](const Call &call) { return end(services, voice, call); });
    router.get("/vendor/elevenlabs-client\\.1\\.21\\.0\\.js", Access::Everybody,
               [&](const Call &) { return script(voice); });
}

} // namespace kiv::sandbox
