#pragma once

#include "net/Record.h"

#include <QList>
#include <QString>

namespace kiv::net {

namespace KivAPI {

/// Whether calls can be placed, and by which reason code not.
struct VoiceCapability {
    bool available = false;
    std::optional<QString> reason;

    friend bool operator==(const VoiceCapability &, const VoiceCapability &) = default;
};

/// What starts a call.
struct VoiceSessionInfo {
    std::optional<QString> token;     ///< for the real-time media transport
    std::optional<QString> signedUrl; ///< for the socket transport, tried first
    std::optional<QString> callId;
    std::optional<double> maxDurationSecs;

    friend bool operator==(const VoiceSessionInfo &, const VoiceSessionInfo &) = default;
};

/// A call about to start, with the reply as it came: the voice page reads more from it.
struct VoiceSession {
    VoiceSessionInfo info;
    QString reply;
};

/// One past call.
struct VoiceCallEntry {
    QString id;
    std::optional<QString> status;
    std::optional<double> durationSecs;
    std::optional<QString> startedAt; ///< timestamp text, as it came
    std::optional<QString> snippet;
    std::optional<bool> hasTranscript;

    friend bool operator==(const VoiceCallEntry &, const VoiceCallEntry &) = default;
};

struct VoiceCallsList {
    std::optional<QList<VoiceCallEntry>> calls;

    friend bool operator==(const VoiceCallsList &, const VoiceCallsList &) = default;
};

struct TranscriptLine {
    std::optional<QString> role;
    std::optional<double> t; ///< seconds from the start of the call
    std::optional<QString> text;

    friend bool operator==(const TranscriptLine &, const TranscriptLine &) = default;
};

struct VoiceCallDetail {
    struct CallBody {
        std::optional<QList<TranscriptLine>> transcript;

        friend bool operator==(const CallBody &, const CallBody &) = default;
    };

    std::optional<CallBody> call;

    friend bool operator==(const VoiceCallDetail &, const VoiceCallDetail &) = default;
};

} // namespace KivAPI

// clang-format off
template <>
inline constexpr auto tableOf<KivAPI::VoiceCapability> = recordTable("KivAPI.VoiceCapability",
    Field{&KivAPI::VoiceCapability::available, "available"},
    Field{&KivAPI::VoiceCapability::reason, "reason"});

template <>
inline constexpr auto tableOf<KivAPI::VoiceSessionInfo> = recordTable("KivAPI.VoiceSessionInfo",
    Field{&KivAPI::VoiceSessionInfo::token, "token"},
    Field{&KivAPI::VoiceSessionInfo::signedUrl, "signed_url"},
    Field{&KivAPI::VoiceSessionInfo::callId, "call_id"},
    Field{&KivAPI::VoiceSessionInfo::maxDurationSecs, "max_duration_secs"});

template <>
inline constexpr auto tableOf<KivAPI::VoiceCallEntry> = recordTable("KivAPI.VoiceCallEntry",
    Field{&KivAPI::VoiceCallEntry::id, "id"},
    Field{&KivAPI::VoiceCallEntry::status, "status"},
    Field{&KivAPI::VoiceCallEntry::durationSecs, "duration_secs"},
    Field{&KivAPI::VoiceCallEntry::startedAt, "started_at"},
    Field{&KivAPI::VoiceCallEntry::snippet, "snippet"},
    Field{&KivAPI::VoiceCallEntry::hasTranscript, "has_transcript"});

template <>
inline constexpr auto tableOf<KivAPI::VoiceCallsList> = recordTable("KivAPI.VoiceCallsList",
    Field{&KivAPI::VoiceCallsList::calls, "calls"});

template <>
inline constexpr auto tableOf<KivAPI::TranscriptLine> = recordTable("KivAPI.TranscriptLine",
    Field{&KivAPI::TranscriptLine::role, "role"},
    Field{&KivAPI::TranscriptLine::t, "t"},
    Field{&KivAPI::TranscriptLine::text, "text"});

template <>
inline constexpr auto tableOf<KivAPI::VoiceCallDetail::CallBody> = recordTable("KivAPI.VoiceCallDetail.CallBody",
    Field{&KivAPI::VoiceCallDetail::CallBody::transcript, "transcript"});

template <>
inline constexpr auto tableOf<KivAPI::VoiceCallDetail> = recordTable("KivAPI.VoiceCallDetail",
    Field{&KivAPI::VoiceCallDetail::call, "call"});
// clang-format on

} // namespace kiv::net
