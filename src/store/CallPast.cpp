// Calls of before: their list, their transcripts and their lines in the conversations.

#include "base/IsoTime.h"
#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/CallRoom.h"

#include <algorithm>

namespace kiv::store {

namespace {

constexpr int historyLimit = 50;

QDateTime startOf(const net::KivAPI::VoiceCallEntry &call) {
    return parseDate(call.startedAt).value_or(QDateTime());
}

} // namespace

void CallRoom::loadCallHistory() {
    const QString agent = currentCallee().agent;
    if (!agent.isEmpty())
        m_history.restart([this, agent](Cancel cancel) {
            return loadHistory(agent, std::nullopt, std::move(cancel));
        });
}

void CallRoom::attachSharedVoiceHistory(const net::ChatTarget &target) {
    // A project room has no calls of its own.
    if (target.isAgent() && !m_store.isSnapshot())
        m_history.restart([this, target](Cancel cancel) {
            return loadHistory(target.id(), target, std::move(cancel));
        });
}

QCoro::Task<void> CallRoom::loadHistory(QString agentID, std::optional<net::ChatTarget> chat,
                                        Cancel cancel) {
    if (m_historyAgent != agentID) {
        m_historyAgent = agentID;
        m_callHistory.replaceAll({});
        m_callTranscriptOpen = QString();
        m_callHistoryLoaded = false;
    }
    m_callHistoryFailed = false;
    try {
        auto calls =
            co_await net::KivAPI::voiceCalls(&m_store.net(), agentID, historyLimit, cancel);
        std::ranges::stable_sort(calls, std::greater(), startOf);
        m_callHistory.replaceAll(calls);
        m_callHistoryLoaded = true;
        if (chat) {
            m_feed.addPast(chat->streamPath(), calls);
            m_store.chat()->placeCalls(*chat);
        }
    } catch (const std::exception &) {
        cancel.throwIfRequested();
        m_callHistoryFailed = true;
    }
}

void CallRoom::toggleCallTranscript(const QString &callID) {
    m_transcripts.cancel();
    const bool opens = m_callTranscriptOpen.value() != callID;
    m_callTranscriptOpen = opens ? callID : QString();
    m_callHistory.open(m_callTranscriptOpen);
    if (opens)
        m_transcripts.start(
            [this, callID](Cancel cancel) { return loadTranscript(callID, std::move(cancel)); });
}

QCoro::Task<void> CallRoom::loadTranscript(QString callID, Cancel cancel) {
    try {
        const QList<PastLine> lines = co_await transcriptOf(callID, cancel);
        m_callHistory.setLines(lines);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        m_callTranscriptOpen = QString();
        m_callHistory.open({});
        showCallHint(net::errorText(error));
    }
}

QCoro::Task<QList<PastLine>> CallRoom::transcriptOf(QString callID, Cancel cancel) {
    if (m_callTranscriptRows.contains(callID))
        co_return m_callTranscriptRows.value(callID);
    const net::KivAPI::VoiceCallDetail detail =
        co_await net::KivAPI::voiceCall(&m_store.net(), callID, std::move(cancel));
    QList<PastLine> lines;
    if (detail.call && detail.call->transcript) {
        for (const net::KivAPI::TranscriptLine &line : *detail.call->transcript) {
            const QString text = line.text.value_or(QString()).trimmed();
            if (!text.isEmpty())
                lines.append({.role = line.role.value_or(QString()),
                              .seconds = static_cast<int>(line.t.value_or(0)),
                              .text = text});
        }
    }
    m_callTranscriptRows.insert(callID, lines);
    co_return lines;
}

void CallRoom::toggleCallLines(const QString &callID) {
    const auto chat = m_store.chat()->connected();
    if (!chat)
        return;
    m_transcripts.start([this, chat = *chat, callID](Cancel cancel) {
        return openLines(chat, callID, std::move(cancel));
    });
}

QCoro::Task<void> CallRoom::openLines(net::ChatTarget chat, QString callID, Cancel cancel) {
    const QString path = chat.streamPath();
    if (m_feed.needsLines(path, callID)) {
        try {
            const QList<PastLine> lines = co_await transcriptOf(callID, cancel);
            m_feed.setLines(path, callID, lines);
        } catch (const std::exception &error) {
            cancel.throwIfRequested();
            showCallHint(net::errorText(error));
            co_return;
        }
    }
    m_feed.toggle(path, callID);
    m_store.chat()->placeCalls(chat);
}

QList<Msg> CallRoom::withCalls(const net::ChatTarget &target, const QList<Msg> &messages,
                               bool hasOlder, const std::optional<QDateTime> &since) const {
    return m_feed.placed(target.streamPath(), messages, hasOlder, since);
}

/// What was said stays in the conversation that the call was placed from.
void CallRoom::flushCallIntoFeed() {
    if (!m_callee.chat)
        return;
    QList<PastLine> lines;
    for (const CallLine &line : m_callTranscript.lines()) {
        if (line.kind == CallLineKind::Speech)
            lines.append({.role = line.who, .seconds = line.at, .text = line.text});
    }
    const QString id = m_callID.isEmpty() ? QUuid::createUuid().toString() : m_callID;
    m_feed.add(m_callee.chat->streamPath(), id, m_startedAt, m_callSec, lines);
    m_store.chat()->placeCalls(*m_callee.chat);
}

void CallRoom::clear() {
    m_press.cancel();
    m_mint.cancel();
    m_history.cancel();
    m_transcripts.cancel();
    m_feed.clear();
    m_callTranscriptRows.clear();
    m_callTranscript.clear();
    m_callHistory.replaceAll({});
    m_historyAgent = QString();
    m_callTranscriptOpen = QString();
    m_callHistoryLoaded = false;
    m_callHistoryFailed = false;
    m_voiceAvailable = std::nullopt;
    m_voiceReason = QString();
    dropEngine();
}

} // namespace kiv::store
