#include "store/CallRoom.h"

#include "store/AppStore.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

CallRoom::CallRoom(AppStore &store) : m_store(store) {}

void CallRoom::callAction() {
    m_callHint = u"Voice call is unavailable right now."_s;
}

void CallRoom::hangupCall() {
    m_call = false;
    m_callShown = false;
}

void CallRoom::toggleMute() {
    m_callMuted = !m_callMuted;
}

void CallRoom::toggleHold() {
    m_callHeld = !m_callHeld;
}

void CallRoom::callSay(const QString &text) {
    m_callTranscript.type(text, m_callSec);
    m_callDraft = QString();
}

void CallRoom::callShare() {
    m_callHint = u"Canvas link copied · anyone on the project can open it"_s;
}

void CallRoom::loadCallHistory() {}

void CallRoom::toggleCallTranscript(const QString &callID) {
    m_callTranscriptOpen = m_callTranscriptOpen.value() == callID ? QString() : callID;
    m_callHistory.open(m_callTranscriptOpen);
}

void CallRoom::toggleCallLines(const QString &) {}

} // namespace kiv::store
