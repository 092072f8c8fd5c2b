// Opening a chat: history, live rows, and what of ours the server has not stored.

#include "net/KivAPI.h"
#include "store/AppStore.h"
#include "store/ChatRoom.h"
#include "store/HistoryMerge.h"

#include <algorithm>

namespace kiv::store {

using namespace std::chrono_literals;

namespace {

constexpr int historyLimit = 80;
constexpr Clock::Milliseconds longestPause = 30s;

/// The page of history that shows when a chat is opened.
QCoro::Task<net::ChatPage> newestPage(net::APIClient *client, net::ChatTarget target,
                                      Cancel cancel) {
    if (target.isAgent())
        return net::KivAPI::agentChatHistory(client, target.id(), historyLimit, std::move(cancel));
    return net::KivAPI::projectChatHistory(client, target.id(), historyLimit, std::move(cancel));
}

QList<Msg> unsentOf(const QList<Msg> &messages) {
    QList<Msg> unsent;
    std::ranges::copy_if(messages, std::back_inserter(unsent), &Msg::isUnsent);
    return unsent;
}

} // namespace

void ChatRoom::connectChat() {
    m_store.chatStream().stop();
    m_refusal.cancel();
    m_connection.cancel();
    endWaiting();
    m_store.canvas()->resetTurn();
    m_chatNote = QString();
    m_store.attachments()->clear();
    m_historyLoading = false;
    m_refusedPause = firstPause;
    m_store.events()->loadEvents();

    const auto target = m_store.scope()->chatTarget();
    if (target != m_connected || !target) {
        // Nothing of the chat before may be read as this one's.
        setUnsentAside();
        enterChat(target);
        m_store.canvas()->clearCanvas();
        m_msgs.replaceAll(target ? m_unsent.take(target->streamPath())
                                 : QList<Msg>{liveGreeting()});
    }
    ++m_chatGen;
    m_clearedTo.reset();
    m_clearedAt.reset();
    if (target)
        openLine(*target, Reason::Entered);
}

void ChatRoom::refresh() {
    if (m_connected)
        openLine(*m_connected, Reason::LineLost);
}

void ChatRoom::openLine(const net::ChatTarget &target, Reason reason) {
    const int gen = m_chatGen;
    auto load = [this, gen, target](Reason now) {
        m_live.clear();
        m_connection.restart([this, gen, target, now](Cancel cancel) {
            return loadHistory(gen, target, now, std::move(cancel));
        });
    };
    load(reason);
    m_refusal.cancel();
    m_store.chatStream().start(
        target.streamPath(),
        {.onMessage = [this, gen](const net::ChatRow &row) { onLiveInsert(gen, row); },
         .onReconnect = [load] { load(Reason::LineLost); },
         .onOpen =
             [this, load] {
                 m_refusedPause = firstPause;
                 m_isPageEarly = true;
                 if (!m_connection.running())
                     load(Reason::LineStands);
             },
         .onRefused =
             [this] {
                 m_refusal.restart(
                     [this](Cancel cancel) { return afterRefusal(std::move(cancel)); });
             }});
}

/// Either the session is over, or the line was refused without a reason: then it is asked for anew,
/// later each time.
QCoro::Task<void> ChatRoom::afterRefusal(Cancel cancel) {
    if (co_await m_store.session()->isOver(cancel)) {
        m_store.session()->expire();
        co_return;
    }
    const auto pause = m_refusedPause;
    m_refusedPause = std::min(2 * pause, longestPause);
    co_await m_store.clock().sleep(pause, cancel);
    refresh();
}

void ChatRoom::disconnectChat() {
    m_store.dictation()->stop();
    m_store.chatStream().stop();
    m_refusal.cancel();
    ++m_chatGen;
    m_connection.cancel();
    m_historyLoading = false;
    endWaiting();
    m_posts.cancel();
    m_unsent.clear();
    m_live.clear();
    keepFiles();
    m_connected.reset();
    m_lastPrompt = QString();
    m_store.attachments()->clear();
}

/// Puts messages of ours that have no row yet aside, so that coming back to this chat shows them.
void ChatRoom::setUnsentAside() {
    const QList<Msg> unsent = unsentOf(m_msgs.messages());
    if (m_connected && !unsent.isEmpty())
        m_unsent[m_connected->streamPath()] += unsent;
}

/// A page that does not come is asked for again, and so is one that was asked for before the line
/// stood: the stream alone does not bring what was missed.
QCoro::Task<void> ChatRoom::loadHistory(int gen, net::ChatTarget target, Reason reason,
                                        Cancel cancel) {
    for (auto pause = firstPause;; pause = std::min(2 * pause, longestPause)) {
        m_historyLoading = true;
        m_isPageEarly = false;
        bool hasCome = false;
        try {
            net::ChatPage page = co_await newestPage(&m_store.net(), target, cancel);
            hasCome = true;
            const bool hasOlder = page.messages.size() >= historyLimit;
            if (gen == m_chatGen && m_clearedAt && !m_clearedTo)
                clearTo(page.messages);
            const auto cleared = page.messages.removeIf(
                [this](const net::ChatRow &row) { return row.id && isCleared(*row.id); });
            const bool bringsNothing = reason == Reason::LineStands && showsAll(page.messages);
            if (gen == m_chatGen && !bringsNothing) {
                m_hasOlderRows = hasOlder || cleared > 0;
                showHistory(page.messages, reason);
                m_store.call()->attachSharedVoiceHistory(target);
            }
        } catch (const std::exception &) {
            // What is shown stays; a chat that shows nothing yet greets.
            cancel.throwIfRequested();
            if (m_msgs.count() == 0)
                m_msgs.append(liveGreeting());
        }
        m_historyLoading = false;
        if (hasCome && !m_isPageEarly)
            co_return;
        if (hasCome)
            reason = Reason::LineStands;
        else
            co_await m_store.clock().sleep(pause, cancel);
    }
}

/// A new chat was begun before its first page came: what is on it was there before, up to what has
/// come since. A question that nothing tells apart from the rows of before keeps them all.
void ChatRoom::clearTo(const QList<net::ChatRow> &rows) {
    if (!unsentOf(m_msgs.messages()).isEmpty())
        return;
    for (const net::ChatRow &row : rows) {
        if (row.id && m_msgs.rowOfServerID(*row.id) >= 0)
            return;
        if (row.id)
            m_clearedTo = row.id;
    }
}

/// The messages of ours that stand among the stored rows. What had failed before a new chat waits
/// for the chat to be entered anew.
QList<Msg> ChatRoom::takeUnsent() {
    QList<Msg> aside = m_unsent.take(m_connected->streamPath());
    QList<Msg> unsent;
    for (Msg &message : aside) {
        if (m_clearedAt && message.failed)
            m_unsent[m_connected->streamPath()].append(std::move(message));
        else
            unsent.append(std::move(message));
    }
    return unsent + unsentOf(m_msgs.messages());
}

bool ChatRoom::showsAll(const QList<net::ChatRow> &rows) const {
    return std::ranges::all_of(rows, [this](const net::ChatRow &row) {
        const auto stored = rowToMsg(row);
        if (!stored)
            return true;
        const qsizetype at = stored->serverID ? m_msgs.rowOfServerID(*stored->serverID) : -1;
        if (at < 0)
            return false;
        const Msg &shown = m_msgs.messages().at(at);
        const bool isAhead = shown.text.size() > stored->text.size();
        return isAhead || (shown.text == stored->text && shown.view == stored->view &&
                           shown.chips == stored->chips);
    });
}

void ChatRoom::showHistory(const QList<net::ChatRow> &rows, Reason reason) {
    CanvasRoom *canvas = m_store.canvas();
    const auto answerBefore = newestAnswer();
    const QList<Msg> unsent = takeUnsent();
    QList<Msg> merged = HistoryMerge(m_msgs.messages(), m_live).merge(rows, unsent);
    if (merged.isEmpty())
        merged.append(liveGreeting());
    m_msgs.replaceAll(m_store.call()->withCalls(*m_connected, merged, m_hasOlderRows, m_clearedAt));
    for (const Msg &message : unsent) {
        const qsizetype row = m_msgs.rowOf(message.id);
        if (row >= 0 && !m_msgs.messages().at(row).isUnsent())
            m_store.attachments()->withdraw(message.attachments);
    }
    m_clearedTo = m_clearedTo.value_or(0);
    // A piece that is slower than this page must not shorten what it brought.
    m_live.removeIf([this](const auto &piece) {
        const qsizetype row = m_msgs.rowOfServerID(piece.key());
        return row >= 0 && m_msgs.messages().at(row).text.size() > piece->text.size();
    });
    markSeen();
    if (m_lastPrompt.value().isEmpty())
        m_lastPrompt = newestQuestion();

    if (canvas->awaitingAnswer()) {
        resumeTurn();
        return;
    }
    m_liveWaiting = false;
    const auto answer = newestAnswer();
    const bool missedNothing =
        answer && answerBefore
            ? answer->text == answerBefore->text && answer->serverID == answerBefore->serverID
            : !answer && !answerBefore;
    if (reason != Reason::Entered && missedNothing)
        return; // what the person looks at stays
    if (reason != Reason::Entered && answer && canvas->isAnswer(*answer)) {
        // It had settled too early: the line was lost in the midst of it.
        canvas->scheduleScenario(m_chatGen, *answer);
        return;
    }
    using canvas::ConversationLine;
    QList<ConversationLine> lines;
    for (const Msg &message : m_msgs.messages()) {
        if (message.fromCall)
            continue;
        lines.append(
            {message.who == Who::You ? ConversationLine::Who::You : ConversationLine::Who::Agent,
             message.text, message.view});
    }
    canvas->applyRestoredCanvas(
        canvas::CanvasEngine::latestDrawable(lines, m_store.net().baseUrl()),
        answer.value_or(Msg()));
}

void ChatRoom::placeCalls(const net::ChatTarget &target) {
    if (m_connected != target)
        return;
    QList<Msg> messages =
        m_store.call()->withCalls(target, m_msgs.messages(), m_hasOlderRows, m_clearedAt);
    // Nothing of it is news: the person took part.
    m_seenMsgs = std::max(m_seenMsgs + static_cast<int>(messages.size()) - m_msgs.count(), 0);
    m_msgs.replaceAll(std::move(messages));
}

/// The question is still open. Rows above it are older than it; an answer below it that came while
/// the line was down goes its way.
void ChatRoom::resumeTurn() {
    CanvasRoom *canvas = m_store.canvas();
    QSet<qint64> older;
    for (const Msg &message : m_msgs.messages().first(std::max(m_msgs.rowOf(m_turn), 0LL))) {
        if (message.serverID)
            older.insert(*message.serverID);
    }
    canvas->addKnown(older);
    const auto answer = newestAnswer();
    if (!answer || canvas->isKnown(*answer->serverID))
        return;
    m_liveWaiting = false;
    m_msgs.setGrowing(answer->id);
    canvas->scheduleScenario(m_chatGen, *answer);
}

std::optional<Msg> ChatRoom::newestAnswer() const {
    const QList<Msg> &messages = m_msgs.messages();
    const auto found = std::find_if(messages.crbegin(), messages.crend(), [](const Msg &message) {
        return message.who == Who::Agent && message.serverID;
    });
    if (found == messages.crend())
        return std::nullopt;
    return *found;
}

/// The server has stored a message of ours: its files wait for no other message.
void ChatRoom::confirm(qsizetype row, Msg stored) {
    const Msg &sent = m_msgs.messages().at(row);
    m_store.attachments()->withdraw(sent.attachments);
    stored.keepFilesOf(sent);
    m_msgs.update(row, std::move(stored));
}

/// A message of ours that a new chat has taken off the screen is stored now: this row is it.
void ChatRoom::takeFromAside(Msg &stored) {
    QList<Msg> &unsent = m_unsent[m_connected->streamPath()];
    const auto sent = std::ranges::find_if(unsent, [&](const Msg &message) {
        return message.isUnsent() && message.text == stored.text;
    });
    if (sent == unsent.end())
        return;
    stored.id = sent->id;
    stored.keepFilesOf(*sent);
    m_store.attachments()->withdraw(sent->attachments);
    unsent.erase(sent);
}

QString ChatRoom::newestQuestion() const {
    const QList<Msg> &messages = m_msgs.messages();
    const auto found = std::find_if(messages.crbegin(), messages.crend(), [](const Msg &message) {
        return message.who == Who::You && !message.fromCall;
    });
    return found == messages.crend() ? QString() : found->text;
}

void ChatRoom::onLiveInsert(int gen, const net::ChatRow &row) {
    if (gen != m_chatGen || m_store.scope()->auth() != AuthPhase::SignedIn ||
        !m_store.scope()->chatTarget())
        return;
    const qsizetype shown = row.id ? m_msgs.rowOfServerID(*row.id) : -1;
    if (shown < 0 && row.id && isCleared(*row.id))
        return;
    // A piece that a page of history has overtaken leaves the text as it is shown, and brings what
    // else has come with it.
    const QString text = shown < 0 ? QString() : m_msgs.messages().at(shown).text;
    const bool isOvertaken = shown >= 0 && !m_live.contains(*row.id) &&
                             row.content.size() < text.size() && text.startsWith(row.content);
    net::ChatRow piece = row;
    if (isOvertaken)
        piece.content = text;
    auto received = rowToMsg(piece);
    if (!received)
        return;
    if (received->serverID && !isOvertaken)
        m_live.insert(*received->serverID, *received);

    if (received->who == Who::You) {
        if (shown >= 0)
            return;
        const qsizetype pending = m_msgs.find([&](const Msg &message) {
            return message.isUnsent() && message.text == received->text;
        });
        if (pending >= 0) {
            confirm(pending, std::move(*received));
        } else {
            takeFromAside(*received);
            m_msgs.append(std::move(*received));
        }
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
    m_store.call()->takeRow(answer, shown < 0);
    const bool isAnswer = m_store.canvas()->isAnswer(answer);
    if (isAnswer && answer.serverID) {
        m_msgs.setGrowing(answer.id);
        m_canStop = isStoppable();
    }
    m_store.canvas()->scheduleScenario(gen, answer);
    if (isAnswer && !answer.serverID) {
        m_isAnswered = true;
        Q_EMIT answerEnded(answer.id);
    }
    if (answer.id == m_earlier)
        followEarlier();
}

} // namespace kiv::store
