#pragma once

#include "net/VoiceRecords.h"
#include "store/CallHistory.h"
#include "store/Msg.h"

#include <QHash>

namespace kiv::store {

/// The calls of each conversation, of this run and of before: a line for each, and below it what
/// was said while it is open.
class CallFeed {
public:
    /// A call that has just ended, listed or not; what was said stays open. `chat` is the path of
    /// its chat.
    void add(const QString &chat, const QString &callID, const QDateTime &startedAt, int seconds,
             const QList<PastLine> &lines);
    /// The calls that the server lists; those whose lines are here are left as they are.
    void addPast(const QString &chat, const QList<net::KivAPI::VoiceCallEntry> &calls);
    void clear() { m_calls.clear(); }

    /// Whether the line of this call can be opened and what was said has to be asked for first.
    bool needsLines(const QString &chat, const QString &callID) const;
    void setLines(const QString &chat, const QString &callID, const QList<PastLine> &lines);
    /// Opens or closes the line of a call.
    void toggle(const QString &chat, const QString &callID);

    /// The conversation with its calls where they belong by their time. Calls before the first
    /// message are left out when there are older messages than these, and so is what began before
    /// `since`.
    QList<Msg> placed(const QString &chat, const QList<Msg> &messages, bool hasOlder,
                      const std::optional<QDateTime> &since) const;

private:
    struct Call {
        Msg head;
        bool hasTranscript = false;
        std::optional<QList<Msg>> lines; ///< nothing until they are here
    };
    /// In the place of what is known of this call, else behind the others.
    void put(const QString &chat, Call call);
    Call *find(const QString &chat, const QString &callID);
    const Call *find(const QString &chat, const QString &callID) const;

    QHash<QString, QList<Call>> m_calls; ///< by the path of the chat, in the order of time
};

} // namespace kiv::store
