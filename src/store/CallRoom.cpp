#include "store/CallRoom.h"

#include "base/BaseUrl.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/CallTexts.h"
#include "store/HostedVoicePages.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

CallRoom::CallRoom(AppStore &store)
    : m_store(store), m_hosted(std::make_unique<HostedVoicePages>(store)) {}

CallRoom::~CallRoom() = default;

voice::VoicePages &CallRoom::pages() {
    return m_pages ? *m_pages : *m_hosted;
}

voice::VoiceEngine &CallRoom::engine() {
    if (!m_voice) {
        m_voice =
            std::make_unique<voice::VoiceEngine>(m_store.clock(), pages(), m_store.net().baseUrl());
        m_voice->onEvent = [this](const auto &event) { handleVoiceEvent(event); };
        m_voice->onGone = [this] { onEngineGone(); };
    }
    return *m_voice;
}

/// The next call gets a fresh one.
void CallRoom::dropEngine() {
    if (!m_voice)
        return;
    m_warm.cancel();
    m_connect.cancel();
    m_warmLimit.stop();
    m_voice->onEvent = nullptr;
    m_voice->onGone = nullptr;
    m_voice.release()->deleteLater(); // it may be the one that calls
}

CallRoom::Callee CallRoom::currentCallee() const {
    const ScopeRoom *scope = m_store.scope();
    const auto agent = scope->currentAgent();
    // A project has no voice of its own: KIV speaks for it.
    return {.agent = agent ? agent->id : scope->kivID(),
            .chat = scope->chatTarget(),
            .project = scope->project()};
}

void CallRoom::showCallee() {
    const ScopeRoom *scope = m_store.scope();
    const bool isAgent = scope->currentAgent().has_value();
    m_callName = isAgent ? scope->scopeName() : u"KIV"_s;
    m_callKind = isAgent ? ScopeKind::Agent : ScopeKind::Kiv;
    m_callColorHex = isAgent ? scope->scopeColorHex() : QString();
    Q_EMIT callWithChanged();
}

void CallRoom::callAction() {
    if (m_store.scope()->auth() == AuthPhase::Anon)
        m_store.session()->openAuthSheet(AuthSheetMode::Login);
    if (m_store.scope()->auth() != AuthPhase::SignedIn || m_press.running())
        return;
    if (m_call && m_callPhase != CallPhase::Ending) {
        showCall();
        return;
    }
    if (m_call)
        finishCall();
    m_press.start([this](Cancel cancel) { return press(std::move(cancel)); });
}

QCoro::Task<void> CallRoom::press(Cancel cancel) {
    // What stood in the way of a call may be gone by now.
    if (m_voiceAvailable.value() != true)
        co_await probeVoice(cancel);
    if (m_voiceAvailable.value() != true) {
        showCallHint(CallTexts::hint(m_voiceReason));
        co_return;
    }
    if (const QString refusal = pages().refusal(); !refusal.isEmpty())
        showCallHint(refusal);
    else
        startLiveCall();
}

QCoro::Task<void> CallRoom::probeVoice(Cancel cancel) {
    if (!micAllowed()) {
        m_voiceReason = u"browser_unsupported"_s;
        m_voiceAvailable = false;
        co_return;
    }
    try {
        const net::KivAPI::VoiceCapability capability =
            co_await net::KivAPI::voiceCapability(&m_store.net(), cancel);
        m_voiceReason = capability.available ? QString() : capability.reason.value_or(QString());
        m_voiceAvailable = capability.available;
    } catch (const std::exception &) {
        // Nobody knows; the next press asks again.
        cancel.throwIfRequested();
        m_voiceReason = QString();
        m_voiceAvailable = std::nullopt;
    }
    if (m_voiceAvailable.value() == true && pages().refusal().isEmpty())
        m_warm.restart([this](Cancel warmUp) { return warmUpEarly(std::move(warmUp)); });
}

/// There is a microphone, and it can be opened.
bool CallRoom::micAllowed() {
    try {
        const auto input = m_store.microphone()->newInput();
        input->start([](const QByteArray &) {}, [](const QString &) {});
        input->stop();
        return true;
    } catch (const voice::AudioError &) {
        return false;
    }
}

/// The page is made while the session is asked for. What fails here fails again where it counts.
QCoro::Task<void> CallRoom::warmUpEarly(Cancel cancel) {
    try {
        co_await engine().warmUp(cancel);
    } catch (const voice::VoiceError &) {
    }
}

void CallRoom::showCallHint(const QString &text) {
    m_callHint = text;
}

void CallRoom::toggleMute() {
    m_callMuted = m_call && !m_callMuted;
    applyMute();
}

void CallRoom::toggleHold() {
    if (!m_call || m_callPhase != CallPhase::Active)
        return;
    m_callHeld = !m_callHeld;
    applyMute();
    if (m_callHeld) {
        m_holdLine = m_callTranscript.note(tr("On hold"), u"running"_s, m_callSec);
        return;
    }
    m_callTranscript.settle(m_holdLine, tr("Was on hold"));
}

void CallRoom::applyMute() {
    if (!m_voice || !m_voice->webView())
        return;
    m_voice->setMuted(m_callMuted || m_callHeld);
    m_voice->webView()->setAudible(!m_callHeld);
}

/// The page gets the chosen microphone when it asks for one the next time.
void CallRoom::applyMicrophone() {
    MicrophoneRoom *microphone = m_store.microphone();
    microphone->look();
    QString name;
    for (const MicrophoneDevice &device : microphone->devices()) {
        if (device.id == microphone->chosen())
            name = device.name;
    }
    engine().webView()->setMicrophone(name);
}

void CallRoom::showLevel() {
    m_level = m_store.microphone()->newInput();
    try {
        m_level->start([](const QByteArray &) {}, [](const QString &) {});
    } catch (const voice::AudioError &) {
        m_level.reset(); // the page may hear all the same
    }
}

void CallRoom::callSay(const QString &text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() || m_callPhase != CallPhase::Active || !m_call)
        return;
    m_callTranscript.type(trimmed, m_callSec);
    engine().say(trimmed);
    m_callDraft = QString();
}

/// A call from a project room is with KIV, whose rows come into its own conversation.
bool CallRoom::isCalledFromHere() const {
    return m_callee.chat && m_callee.chat->isAgent() &&
           m_callee.chat == m_store.chat()->connected();
}

bool CallRoom::isUnasked(const Msg &row) const {
    const QList<Msg> &messages = m_store.chat()->msgs()->messages();
    const qsizetype above = m_store.chat()->msgs()->rowOf(row.id) - 1;
    const bool isBelowTyped =
        above >= 0 && messages.at(above).who == Who::You && !messages.at(above).fromCall;
    return !m_store.canvas()->awaitingAnswer() && !isBelowTyped;
}

void CallRoom::takeRow(const Msg &row, bool isNew) {
    if (!m_call || m_callPhase != CallPhase::Active || !row.serverID || !isCalledFromHere())
        return;
    if (isNew && isUnasked(row))
        m_rowsMeanwhile.insert(*row.serverID);
    if (m_rowsMeanwhile.contains(*row.serverID) &&
        m_callTranscript.draw(*row.serverID, row.title, row.art, m_callSec))
        m_store.canvas()->adoptAnswer(row.id, spokenQuestion(row).value_or(QString()));
}

std::optional<QString> CallRoom::spokenQuestion(const Msg &row) const {
    const auto drawing =
        row.serverID && isCalledFromHere() ? m_callTranscript.drawing(*row.serverID) : std::nullopt;
    return drawing ? std::optional(drawing->question) : std::nullopt;
}

QString CallRoom::messageOf(const QString &action) const {
    if (!isCalledFromHere())
        return {};
    const MessageModel *messages = m_store.chat()->msgs();
    const qsizetype row = messages->rowOfServerID(action.toLongLong());
    return row < 0 ? QString() : messages->messages().at(row).id.toString(QUuid::WithoutBraces);
}

void CallRoom::showDrawing(const QString &action) {
    const QString message = messageOf(action);
    if (message.isEmpty()) {
        showCallHint(tr("It is not in the conversation that is shown now."));
        return;
    }
    leaveCallScreen();
    m_store.layout()->closePages();
    m_store.canvas()->showMessageCanvas(message);
}

void CallRoom::callShare() {
    const QString project = m_call ? m_callee.project : m_store.scope()->project();
    const QUrl &base = m_store.net().baseUrl();
    const QUrl link =
        project.isEmpty() ? base : appendPath(base, u"project/"_s + pathSegment(project));
    Q_EMIT callLinkShared(link.toString(QUrl::FullyEncoded));
    showCallHint(u"Canvas link copied · anyone on the project can open it"_s);
}

} // namespace kiv::store
