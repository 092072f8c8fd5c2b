#include "../FuzzText.h"

#include "net/AccountRecords.h"
#include "net/AgentRecords.h"
#include "net/AvatarReply.h"
#include "net/ChatRecords.h"
#include "net/Decode.h"
#include "net/ProjectRecords.h"
#include "net/SessionRecords.h"
#include "net/VoiceRecords.h"

#include <string>
#include <variant>

using namespace kiv;
using namespace kiv::net;

namespace {

template <typename Read>
auto outcome(const Read &read) -> std::variant<decltype(read()), std::string> {
    try {
        return read();
    } catch (const DecodingError &error) {
        return std::string(error.what());
    }
}

/// The record, or what is said of its absence.
template <typename T>
auto recordIn(const QByteArray &body) {
    return outcome([&] { return decodeBody<T>(body); });
}

/// The body in other words: a member more that nobody knows, in front of all others.
QByteArray withUnknownMember(const QByteArray &body) {
    const auto value = JVal::parse(body);
    if (!value || !value->asObj() || value->asObj()->isEmpty())
        return body;
    QByteArray more = body;
    return more.insert(more.indexOf('{') + 1, R"("\u0001":[{"id":[]}],)");
}

template <typename... Bodies>
void check(const QByteArray &body) {
    const QByteArray spaced = "\r\n\t " + body + " \n";
    const QByteArray more = withUnknownMember(body);
    (mustHold(recordIn<Bodies>(body) == recordIn<Bodies>(spaced)), ...);
    (mustHold(recordIn<Bodies>(body) == recordIn<Bodies>(more)), ...);
}

} // namespace

/// Every body of the backend, read from the same bytes: a record or a reason, and the same one for
/// what means the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QByteArray body(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    using namespace KivAPI;
    check<Ack, AgentCreateResult, AgentsList, AuthResult, ChatPage, ChatRow, ChatSendResult, MeUser,
          OrchestratorInfo, PlanInfo, ProjectEventsPage, ProjectsList, QList<ProjectMember>,
          UploadResult, UserProfile, VoiceCallDetail, VoiceCallsList, VoiceCapability,
          VoiceSessionInfo, WalletInfo>(body);
    const auto address = outcome([&] { return avatarAddress(body); });
    mustHold(address == outcome([&] { return avatarAddress(withUnknownMember(body)); }));
    return 0;
}
