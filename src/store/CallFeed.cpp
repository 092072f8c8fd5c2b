#include "store/CallFeed.h"

#include "base/IsoTime.h"
#include "store/CallTexts.h"

#include <algorithm>

namespace kiv::store {

namespace {

Msg headOf(const QString &callID, const QDateTime &startedAt, const QString &text) {
    Msg head = localMsg(Who::Agent, text);
    head.fromCall = true;
    head.callID = callID;
    head.callHead = true;
    head.at = startedAt;
    return head;
}

QList<Msg> messagesOf(const Msg &head, const QList<PastLine> &lines) {
    QList<Msg> messages;
    for (const PastLine &line : lines) {
        Msg message = localMsg(line.isOwner() ? Who::You : Who::Agent, line.text);
        message.fromCall = true;
        message.callID = head.callID;
        message.at = head.at->addSecs(line.seconds);
        messages.append(std::move(message));
    }
    return messages;
}

/// Behind the last message that is not younger; messages without a time stand with what is above
/// them.
qsizetype placeOf(const QDateTime &time, const QList<Msg> &messages) {
    qsizetype place = -1;
    qsizetype firstTimed = messages.size();
    for (qsizetype row = messages.size() - 1; row >= 0; --row) {
        if (!messages.at(row).at)
            continue;
        firstTimed = row;
        if (place < 0 && *messages.at(row).at <= time)
            place = row + 1;
    }
    return place < 0 ? firstTimed : place;
}

} // namespace

CallFeed::Call *CallFeed::find(const QString &chat, const QString &callID) {
    return const_cast<Call *>(std::as_const(*this).find(chat, callID));
}

const CallFeed::Call *CallFeed::find(const QString &chat, const QString &callID) const {
    const auto calls = m_calls.constFind(chat);
    if (calls == m_calls.cend())
        return nullptr;
    const auto found =
        std::ranges::find_if(*calls, [&](const Call &call) { return call.head.callID == callID; });
    return found == calls->cend() ? nullptr : &*found;
}

void CallFeed::add(const QString &chat, const QString &callID, const QDateTime &startedAt,
                   int seconds, const QList<PastLine> &lines) {
    Call call{.head = headOf(callID, startedAt, CallTexts::callLine(seconds)),
              .hasTranscript = !lines.isEmpty(),
              .lines = {}};
    call.head.callHasLines = call.hasTranscript;
    call.head.callOpen = call.hasTranscript;
    call.lines = messagesOf(call.head, lines);
    put(chat, std::move(call));
}

void CallFeed::addPast(const QString &chat, const QList<net::KivAPI::VoiceCallEntry> &calls) {
    for (const net::KivAPI::VoiceCallEntry &entry : calls) {
        const auto at = parseDate(entry.startedAt);
        const Call *listed = std::as_const(*this).find(chat, entry.id);
        if (!at || (listed && listed->lines))
            continue;
        std::optional<int> seconds;
        if (entry.durationSecs && *entry.durationSecs > 0)
            seconds = static_cast<int>(*entry.durationSecs);
        Call call{.head = headOf(entry.id, *at,
                                 CallTexts::callLine(seconds, entry.status.value_or(QString()))),
                  .hasTranscript = entry.hasTranscript.value_or(false),
                  .lines = {}};
        call.head.callHasLines = call.hasTranscript;
        put(chat, std::move(call));
    }
    std::ranges::stable_sort(m_calls[chat], {}, [](const Call &call) { return *call.head.at; });
}

void CallFeed::put(const QString &chat, Call call) {
    if (Call *listed = find(chat, call.head.callID)) {
        call.head.id = listed->head.id;
        *listed = std::move(call);
    } else {
        m_calls[chat].append(std::move(call));
    }
}

bool CallFeed::needsLines(const QString &chat, const QString &callID) const {
    const Call *call = find(chat, callID);
    return call && call->hasTranscript && !call->lines;
}

void CallFeed::setLines(const QString &chat, const QString &callID, const QList<PastLine> &lines) {
    if (Call *call = find(chat, callID))
        call->lines = messagesOf(call->head, lines);
}

void CallFeed::toggle(const QString &chat, const QString &callID) {
    Call *call = find(chat, callID);
    if (call && call->lines)
        call->head.callOpen = !call->head.callOpen;
}

QList<Msg> CallFeed::placed(const QString &chat, const QList<Msg> &messages, bool hasOlder,
                            const std::optional<QDateTime> &since) const {
    QList<Msg> shown;
    std::ranges::copy_if(messages, std::back_inserter(shown),
                         [](const Msg &message) { return !message.fromCall; });
    const QList<Msg> chatAlone = shown;
    // From the newest on, so that what is placed does not move what is still to be placed.
    const QList<Call> calls = m_calls.value(chat);
    for (auto call = calls.crbegin(); call != calls.crend(); ++call) {
        const qsizetype place = placeOf(*call->head.at, chatAlone);
        const bool isBeforeAll =
            place < chatAlone.size() && std::none_of(chatAlone.cbegin(), chatAlone.cbegin() + place,
                                                     [](const Msg &message) { return message.at; });
        if ((isBeforeAll && hasOlder) || (since && *call->head.at < *since))
            continue;
        QList<Msg> rows{call->head};
        if (call->head.callOpen)
            rows += *call->lines;
        shown = shown.first(place) + rows + shown.sliced(place);
    }
    return shown;
}

} // namespace kiv::store
