// The line of a call: connecting it, what comes over it, and its end.

#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/CallRoom.h"
#include "store/CallTexts.h"

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using voice::VoiceEngine;

namespace {

constexpr auto warmUpPatience = 25s;
constexpr auto endShown = 1200ms;
constexpr auto failureShown = 4s;
constexpr int warningSeconds = 31;

template <typename... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};
template <typename... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

int callMaxOf(const net::KivAPI::VoiceSessionInfo &info, int usual) {
    constexpr double day = 86'400;
    const double seconds = info.maxDurationSecs.value_or(0);
    return seconds >= 1 ? static_cast<int>(std::min(seconds, day)) : usual;
}

} // namespace

void CallRoom::startLiveCall() {
    const int gen = ++m_callGen;
    m_callee = currentCallee();
    showCallee();
    m_callLastError = QString();
    m_callReconnectTried = false;
    m_callReconnecting = false;
    m_callSessionRaw = QString();
    m_wasActive = false;
    m_callMode = u"listening"_s;
    m_callError = QString();
    m_callSec = 0;
    m_callMax = usualMax;
    m_callMuted = false;
    m_callHeld = false;
    m_callTyping = false;
    m_callDraft = QString();
    m_callEndingSoon = false;
    m_callTranscript.clear();
    m_rowsMeanwhile.clear();
    m_callPhase = CallPhase::Connecting;
    m_call = true;
    m_callShown = true;
    m_store.dictation()->stop(); // the microphone is the call's
    m_callChatDigest = CallTexts::chatDigest(m_store.chat()->msgs()->messages());
    m_warm.restart([this](Cancel cancel) { return warmUpEarly(std::move(cancel)); });
    m_mint.start([this, gen](Cancel cancel) { return mintSession(gen, std::move(cancel)); });
}

/// Goes on when the person hangs up meanwhile: a call that the backend has begun must be ended.
QCoro::Task<void> CallRoom::mintSession(int gen, Cancel cancel) {
    try {
        QString agent = m_callee.agent;
        if (agent.isEmpty()) {
            co_await m_store.scope()->resolveKiv(cancel);
            agent = m_store.scope()->kivID();
        }
        const net::KivAPI::VoiceSession session =
            co_await net::KivAPI::voiceSession(&m_store.net(), agent, cancel);
        const QString id = session.info.callId.value_or(QString());
        if (gen != m_callGen) {
            tellEnd(id);
            co_return;
        }
        m_callID = id;
        m_callSessionRaw = session.reply;
        m_callMax = callMaxOf(session.info, usualMax);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        if (gen == m_callGen)
            failStart(error);
        co_return;
    }
    m_connect.restart([this](Cancel connect) { return connectCall(std::move(connect)); });
}

QCoro::Task<void> CallRoom::connectCall(Cancel cancel) {
    try {
        co_await warmUpInTime(cancel);
        applyMicrophone();
        co_await engine().start(m_callSessionRaw, m_callChatDigest, cancel);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        failStart(error);
        co_return;
    }
    callConnected();
}

/// The engine itself waits for its page as long as it takes; a person does not.
QCoro::Task<void> CallRoom::warmUpInTime(Cancel cancel) {
    m_warmLimit = m_store.clock().after(warmUpPatience, [this] { engine().giveUpWarmUp(); });
    co_await engine().warmUp(cancel);
    m_warmLimit.stop();
}

void CallRoom::callConnected() {
    if (!m_callChatDigest.isEmpty())
        engine().seedChatContext(CallTexts::chatContext(m_callChatDigest));
    m_callPhase = CallPhase::Active;
    m_wasActive = true;
    applyMute();
    showLevel();
    startCallClock();
}

/// A call that never came about: its screen goes, and a line says why.
void CallRoom::failStart(const std::exception &error) {
    const QString note = CallTexts::liveCallNote(error);
    hangUp(Ending::AtOnce);
    showCallHint(note);
}

void CallRoom::startCallClock() {
    m_startedAt = m_store.clock().now();
    m_began = m_store.clock().elapsed();
    m_callTask = m_store.clock().after(1s, [this] { tick(); });
}

void CallRoom::tick() {
    const auto elapsed = m_store.clock().elapsed() - m_began;
    const int seconds = static_cast<int>(std::chrono::floor<std::chrono::seconds>(elapsed).count());
    m_callSec = seconds;
    if (m_callMax - seconds < warningSeconds)
        m_callEndingSoon = true;
    if (m_callMax <= seconds) {
        hangupCall();
        return;
    }
    const auto next = std::chrono::seconds(seconds + 1) - elapsed;
    m_callTask = m_store.clock().after(next, [this] { tick(); });
}

void CallRoom::handleVoiceEvent(const VoiceEngine::Event &event) {
    if (!m_call || m_callPhase == CallPhase::Ending)
        return;
    std::visit(Overloaded{
                   [](const VoiceEngine::Connected &) {},
                   [](const VoiceEngine::ConnectFailed &) {},
                   [this](const VoiceEngine::Mode &was) { m_callMode = was.mode; },
                   [this](const VoiceEngine::Message &was) {
                       m_callTranscript.hear(was.who, was.text, was.partial, m_callSec);
                   },
                   [this](const VoiceEngine::Ping &was) {
                       net::KivAPI::rum(&m_store.net(), u"voice_call_timing"_s,
                                        {{u"call_id"_s, m_callID}, {u"ping_ms"_s, was.ms}});
                   },
                   [this](const VoiceEngine::Error &was) {
                       m_callLastError =
                           was.text.isEmpty() ? u"Voice connection error"_s : was.text;
                   },
                   [this](const VoiceEngine::Disconnect &was) { onDisconnect(was); },
               },
               event);
}

void CallRoom::onDisconnect(const VoiceEngine::Disconnect &disconnect) {
    // While the line is being connected anew, the old one may still say that it is gone.
    if (m_callReconnecting)
        return;
    if (disconnect.reason != u"user"_s && m_callLastError.isEmpty())
        m_callLastError = CallTexts::disconnectNote(disconnect);
    if (m_callPhase != CallPhase::Active || m_callReconnectTried || m_callSessionRaw.isEmpty()) {
        m_callError = m_callLastError;
        hangupCall();
        return;
    }
    m_callReconnectTried = true;
    m_callReconnecting = true;
    m_lostLine =
        m_callTranscript.note(tr("Connection lost, connecting again"), u"running"_s, m_callSec);
    m_connect.restart([this](Cancel cancel) { return reconnectCall(std::move(cancel)); });
}

QCoro::Task<void> CallRoom::reconnectCall(Cancel cancel) {
    try {
        applyMicrophone();
        co_await engine().start(m_callSessionRaw, m_callChatDigest, cancel);
    } catch (const std::exception &) {
        cancel.throwIfRequested();
        m_callError = u"Could not reconnect the call"_s;
        hangupCall();
        co_return;
    }
    m_callReconnecting = false;
    m_callLastError = QString();
    m_callTranscript.settle(m_lostLine, tr("Connection was lost for a moment"));
    applyMute();
}

void CallRoom::onEngineGone() {
    dropEngine();
    if (!m_call || m_callPhase == CallPhase::Ending)
        return;
    m_callError = tr("The call ended because its voice engine stopped working.");
    hangupCall();
}

void CallRoom::hangupCall() {
    if (!m_call)
        m_press.cancel();
    else if (m_callPhase == CallPhase::Ending)
        finishCall();
    else
        hangUp(Ending::Shown);
}

void CallRoom::hangUp(Ending ending) {
    tellEnd(leaveLine());
    if (ending == Ending::AtOnce || !m_wasActive) {
        m_callShown = false;
        finishCall();
        return;
    }
    m_finish = m_store.clock().after(m_callError.value().isEmpty() ? endShown : failureShown,
                                     [this] { finishCall(); });
}

/// Nothing goes over the line from here on. Gives the call that the backend is to be told of.
QString CallRoom::leaveLine() {
    ++m_callGen;
    m_connect.cancel();
    m_callTask.stop();
    m_level.reset();
    m_warmLimit.stop();
    if (m_voice && m_voice->webView()) {
        m_voice->webView()->evaluate(u"window.__nativeEnd()"_s);
        m_voice->webView()->setAudible(true);
    }
    m_callPhase = CallPhase::Ending;
    m_callReconnecting = false;
    if (m_wasActive)
        flushCallIntoFeed();
    return std::exchange(m_callID, QString());
}

/// The call screen goes. A failure that nobody saw on it is said once more.
void CallRoom::finishCall() {
    m_finish.stop();
    if (!m_callShown && !m_callError.value().isEmpty())
        showCallHint(m_callError);
    m_call = false;
    m_callShown = false;
    m_callTyping = false;
    m_callMuted = false;
    m_callHeld = false;
}

void CallRoom::leaveCall() {
    m_press.cancel();
    if (m_call && m_callPhase != CallPhase::Ending)
        hangUp(Ending::AtOnce);
    finishCall();
}

QCoro::Task<void> CallRoom::endCall(Cancel cancel) {
    const bool isOn = m_call && m_callPhase != CallPhase::Ending;
    const QString id = isOn ? leaveLine() : QString();
    leaveCall();
    co_await postEnd(id, std::move(cancel));
}

void CallRoom::tellEnd(const QString &callID) {
    m_goodbyes.start([this, callID](Cancel cancel) { return postEnd(callID, std::move(cancel)); });
}

QCoro::Task<void> CallRoom::postEnd(QString callID, Cancel cancel) {
    if (callID.isEmpty())
        co_return;
    try {
        co_await net::KivAPI::voiceEnd(&m_store.net(), callID, cancel);
        if (m_callHistoryLoaded && !m_history.running())
            m_history.restart([this, agent = m_historyAgent](Cancel reload) {
                return loadHistory(agent, std::nullopt, std::move(reload));
            });
    } catch (const std::exception &) {
        // The backend finds out by itself; the line is gone.
        cancel.throwIfRequested();
    }
}

} // namespace kiv::store
