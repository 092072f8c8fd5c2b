// Opening a chat: history, live rows, and what of ours the server has not stored.

#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/ChatRoom.h"

namespace kiv::store {

namespace {
constexpr int historyLimit = 80;
}

void ChatRoom::connectChat() {
    m_store.chatStream().stop();
    m_connection.cancel();
    endWaiting();
    m_store.canvas()->resetTurn();
    m_chatNote = QString();
    m_historyLoading = false;
    keepUnsent();
    m_store.events()->loadEvents();

    const auto target = m_store.scope()->chatTarget();
    const bool another = target != m_connected;
    m_connected = target;
    if (another || !target) {
        // Nothing of the chat before may be read as this one's.
        m_store.canvas()->clearCanvas();
        m_msgs.replaceAll(target ? QList<Msg>() : QList<Msg>{liveGreeting()});
    }
    ++m_chatGen;
    if (!target)
        return;
    const int gen = m_chatGen;
    auto load = [this, gen, chat = *target](bool reconnected) {
        m_connection.restart([this, gen, chat, reconnected](Cancel cancel) {
            return loadHistory(gen, chat, reconnected, std::move(cancel));
        });
    };
    m_live.clear();
    load(false);
    m_store.chatStream().start(
        target->streamPath(), [this, gen](const net::ChatRow &row) { onLiveInsert(gen, row); },
        [load] { load(true); });
}

void ChatRoom::disconnectChat() {
    m_store.chatStream().stop();
    ++m_chatGen;
    m_connection.cancel();
    endWaiting();
    m_posts.cancel();
    m_unsent.clear();
    m_live.clear();
    m_connected.reset();
}

/// Puts messages of ours that have no row yet aside, so that coming back to this chat shows them.
void ChatRoom::keepUnsent() {
    if (!m_connected)
        return;
    QList<Msg> unsent;
    for (const Msg &message : m_msgs.messages()) {
        if (message.isUnsent())
            unsent.append(message);
    }
    if (unsent.isEmpty())
        return;
    m_unsent[m_connected->streamPath()] = unsent;
}

QCoro::Task<void> ChatRoom::loadHistory(int gen, net::ChatTarget target, bool reconnected,
                                        Cancel cancel) {
    m_historyLoading = true;
    try {
        net::ChatPage page;
        if (target.isAgent())
            page = co_await net::KivAPI::agentChatHistory(&m_store.net(), target.id(), historyLimit,
                                                          cancel);
        else
            page = co_await net::KivAPI::projectChatHistory(&m_store.net(), target.id(),
                                                            historyLimit, cancel);
        if (gen == m_chatGen)
            showHistory(page.messages, reconnected);
    } catch (const std::exception &) {
        // What is shown stays; a chat that shows nothing yet greets.
        cancel.throwIfRequested();
        if (m_msgs.count() == 0)
            m_msgs.append(liveGreeting());
    }
    m_historyLoading = false;
}

namespace {

/// The stored rows, each in its newest form, with our unsent messages at the places they had.
class HistoryMerge {
public:
    HistoryMerge(QHash<qint64, Msg> live, QList<Msg> shown)
        : m_live(std::move(live)), m_shown(std::move(shown)) {}

    QList<Msg> merge(const QList<net::ChatRow> &rows, const QList<Msg> &setAside) {
        for (const net::ChatRow &row : rows) {
            if (auto message = rowToMsg(row))
                take(std::move(*message));
        }
        // Rows that the stream brought and the page does not hold yet.
        for (const Msg &message : m_shown) {
            if (message.serverID && m_live.contains(*message.serverID))
                take(m_live.value(*message.serverID));
        }
        QList<Msg> unsent = setAside;
        for (const Msg &message : m_shown) {
            if (message.isUnsent() && !contains(unsent, message.id))
                unsent.append(message);
        }
        for (const Msg &message : unsent)
            place(message);
        return m_merged;
    }

private:
    static bool contains(const QList<Msg> &list, const QUuid &id) {
        return std::ranges::any_of(list, [&](const Msg &message) { return message.id == id; });
    }

    void take(Msg message) {
        if (message.serverID) {
            const auto live = m_live.constFind(*message.serverID);
            if (live != m_live.cend() && live->text.size() > message.text.size())
                message = *live;
            m_live.remove(*message.serverID);
        }
        m_merged.append(std::move(message));
    }

    /// After the row it followed on the screen; a row with its text that was not on the screen is
    /// the message itself, stored.
    void place(const Msg &message) {
        QSet<qint64> known;
        std::optional<qint64> previous;
        for (const Msg &shown : m_shown) {
            if (shown.id == message.id)
                break;
            if (shown.serverID)
                previous = shown.serverID;
        }
        for (const Msg &shown : m_shown) {
            if (shown.serverID)
                known.insert(*shown.serverID);
        }
        qsizetype at = m_merged.size();
        for (qsizetype row = 0; row < m_merged.size(); ++row) {
            const Msg &stored = m_merged.at(row);
            if (stored.who == Who::You && stored.serverID && !known.contains(*stored.serverID) &&
                stored.text == message.text && !m_claimed.contains(*stored.serverID) &&
                sentBefore(message, stored)) {
                m_claimed.insert(*stored.serverID);
                return;
            }
            if (previous && stored.serverID == previous)
                at = row + 1;
        }
        while (at < m_merged.size() && m_merged.at(at).isUnsent())
            ++at;
        m_merged.insert(at, message);
    }

    /// Clocks differ: a row counts as the message unless it is clearly older.
    static bool sentBefore(const Msg &message, const Msg &stored) {
        constexpr qint64 clockSkewSeconds = 120;
        return !message.at || !stored.at || message.at->secsTo(*stored.at) > -clockSkewSeconds;
    }

    QHash<qint64, Msg> m_live;
    QList<Msg> m_shown;
    QList<Msg> m_merged;
    QSet<qint64> m_claimed;
};

} // namespace

void ChatRoom::showHistory(const QList<net::ChatRow> &rows, bool reconnected) {
    CanvasRoom *canvas = m_store.canvas();
    const QList<Msg> setAside = m_unsent.take(m_connected->streamPath());
    QList<Msg> merged = HistoryMerge(m_live, m_msgs.messages()).merge(rows, setAside);
    if (merged.isEmpty())
        merged.append(liveGreeting());
    m_msgs.replaceAll(std::move(merged));
    markSeen();

    if (reconnected && canvas->awaitingAnswer()) {
        // The question is still open. An answer that came while the line was down goes its way.
        const Msg newest = m_msgs.messages().constLast();
        if (newest.who == Who::Agent && newest.serverID && !canvas->isKnown(*newest.serverID)) {
            m_liveWaiting = false;
            m_msgs.setGrowing(newest.id);
            canvas->scheduleScenario(m_chatGen, newest);
        }
        return;
    }
    if (canvas->awaitingAnswer())
        return; // asked before the page was here
    m_liveWaiting = false;
    canvas->setIdle();
    using canvas::ConversationLine;
    QList<ConversationLine> lines;
    for (const Msg &message : m_msgs.messages())
        lines.append(
            {message.who == Who::You ? ConversationLine::Who::You : ConversationLine::Who::Agent,
             message.text, message.view});
    canvas->applyRestoredCanvas(
        canvas::CanvasEngine::latestDrawable(lines, m_store.net().baseUrl()));
}

void ChatRoom::onLiveInsert(int gen, const net::ChatRow &row) {
    if (gen != m_chatGen || m_store.scope()->auth() != AuthPhase::SignedIn ||
        !m_store.scope()->chatTarget())
        return;
    auto received = rowToMsg(row);
    if (!received)
        return;
    if (received->serverID)
        m_live.insert(*received->serverID, *received);
    const qsizetype shown = received->serverID ? m_msgs.rowOfServerID(*received->serverID) : -1;

    if (received->who == Who::You) {
        if (shown >= 0)
            return;
        const qsizetype pending = m_msgs.find([&](const Msg &message) {
            return message.isUnsent() && message.text == received->text;
        });
        if (pending >= 0)
            m_msgs.update(pending, std::move(*received));
        else
            m_msgs.append(std::move(*received));
        return;
    }

    qsizetype at = shown;
    if (shown >= 0) {
        m_msgs.update(shown, std::move(*received));
    } else {
        at = m_msgs.count();
        m_msgs.append(std::move(*received));
    }
    const Msg answer = m_msgs.messages().at(at);
    m_liveWaiting = false;
    if (m_store.canvas()->awaitingAnswer())
        m_msgs.setGrowing(answer.id);
    m_store.canvas()->scheduleScenario(gen, answer);
}

} // namespace kiv::store
