#include "base/BaseUrl.h"
#include "net/KivAPI.h"

namespace kiv::net::KivAPI {

using namespace Qt::StringLiterals;

QCoro::Task<VoiceCapability> voiceCapability(APIClient *client, Cancel cancel) {
    return client->get<VoiceCapability>(u"api/v2/voice/capability"_s, {}, std::move(cancel));
}

QCoro::Task<VoiceSession> voiceSession(APIClient *client, QString agentID, Cancel cancel) {
    const QJsonObject body{{u"agent_id"_s, agentID}};
    const QByteArray reply = co_await client->postRaw(u"api/v2/voice/session"_s, body, cancel);
    co_return VoiceSession{decodeBody<VoiceSessionInfo>(reply), QString::fromUtf8(reply)};
}

QCoro::Task<QList<VoiceCallEntry>> voiceCalls(APIClient *client, QString agentID, int limit,
                                              Cancel cancel) {
    const APIClient::Query query{{u"agent_id"_s, agentID}, {u"limit"_s, QString::number(limit)}};
    VoiceCallsList list =
        co_await client->get<VoiceCallsList>(u"api/v2/voice/calls"_s, query, cancel);
    co_return std::move(list.calls).value_or(QList<VoiceCallEntry>());
}

QCoro::Task<VoiceCallDetail> voiceCall(APIClient *client, QString callID, Cancel cancel) {
    return client->get<VoiceCallDetail>(u"api/v2/voice/calls/"_s + pathSegment(callID), {},
                                        std::move(cancel));
}

QCoro::Task<void> voiceEnd(APIClient *client, QString callID, Cancel cancel) {
    const QJsonObject body{{u"call_id"_s, callID}};
    co_await client->postRaw(u"api/v2/voice/end"_s, body, cancel);
}

} // namespace kiv::net::KivAPI
