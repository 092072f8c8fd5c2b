#pragma once

#include "store/Msg.h"
#include "voice/VoiceEngine.h"

/// What calls say in words.
namespace kiv::store::CallTexts {

/// Why no call is started, from the reason code of the backend.
QString hint(const QString &voiceReason);
/// One line for a failure of a call.
QString liveCallNote(const std::exception &error);
/// What is known of a connection that was lost.
QString disconnectNote(const voice::VoiceEngine::Disconnect &disconnect);
/// What the agent may know of the chat: its newest lines; empty when there are none.
QString chatDigest(const QList<Msg> &messages);
/// The digest as the agent is told it.
QString chatContext(const QString &digest);
/// A length of time, "3:12" or "1:03:12".
QString length(int seconds);
/// The line of a call in the conversation; `status` counts when the length is not known.
QString callLine(std::optional<int> seconds, const QString &status = {});

} // namespace kiv::store::CallTexts
