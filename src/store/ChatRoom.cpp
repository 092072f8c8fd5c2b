#include "store/ChatRoom.h"

#include "net/KivAPI.h"
#include "store/AppStore.h"

#include <algorithm>

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto answerPatience = 180s;

const QString signedOutGreeting =
    u"Sign in to talk to your agents, projects and KIV — everything here is real."_s;

/// What the conversation says of a send that failed.
QString liveSendNote(const std::exception &error) {
    if (const auto *api = dynamic_cast<const net::APIError *>(&error)) {
        if (api->code() == u"work_halted"_s)
            return u"This agent is stopped. Resume it in the dashboard to continue."_s;
        if (api->code() == u"insufficient_funds"_s)
            return u"⚠ Not enough tokens to run this agent."_s;
    }
    return net::errorText(error);
}

} // namespace

ChatRoom::ChatRoom(AppStore &store, const QString &draftsFile)
    : m_store(store), m_feed(&m_msgs), m_drafts(store.clock(), draftsFile) {
    setFeedWindow(feedStep);
    m_msgs.append(localMsg(Who::Agent, signedOutGreeting));
    connect(&m_msgs, &MessageModel::countChanged, this, &ChatRoom::countUnseen);
    StorageRoom *storage = store.storage();
    storage->reportDamage(StorageRoom::Kept::Typed, m_drafts.setAside());
    m_drafts.setReport(
        [storage](const QString &why) { storage->reportTrouble(StorageRoom::Kept::Typed, why); });
    connect(storage, &StorageRoom::retryRequested, this, [this] { m_drafts.retry(); });
}

bool ChatRoom::isShown() const {
    const LayoutRoom *layout = m_store.layout();
    return layout->dockOpen() || layout->railShown();
}

void ChatRoom::countUnseen() {
    if (isShown())
        markSeen();
    m_unseenMsgs = std::max(m_msgs.count() - m_seenMsgs, 0);
    if (m_unseenMsgs > 0)
        m_unreadFrom = m_msgs.messages().at(m_seenMsgs).id.toString(QUuid::WithoutBraces);
}

void ChatRoom::markSeen() {
    m_seenMsgs = m_msgs.count();
    m_unseenMsgs = 0;
    // What was new stays marked until the conversation goes out of sight.
    if (!isShown())
        m_unreadFrom = QString();
}

void ChatRoom::setFeedWindow(int window) {
    m_feedWindow = window;
    m_feed.setWindow(window);
}

void ChatRoom::showOlder() {
    if (m_feed.hasOlder())
        setFeedWindow(m_feedWindow + feedStep);
}

void ChatRoom::send(const QString &text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty() && m_store.attachments()->chatFiles()->attached() == 0)
        return;
    switch (m_store.scope()->auth()) {
    case AuthPhase::Unknown:
        return;
    case AuthPhase::Anon:
        m_store.session()->openAuthSheet(AuthSheetMode::Login);
        return;
    case AuthPhase::SignedIn:
        // Until it is clear who is asked, the text stays where it was typed.
        if (!m_store.session()->isEntering() || m_store.scope()->chatTarget())
            sendLive(trimmed);
    }
}

void ChatRoom::sendDraft() {
    m_store.dictation()->stop();
    send(m_draft);
}

void ChatRoom::sendLive(const QString &text) {
    const auto target = m_store.scope()->chatTarget();
    if (!target) {
        m_msgs.append(localMsg(Who::You, text));
        m_msgs.append(localMsg(Who::Agent, u"This one exists only in the prototype so far — pick a "
                                           "real project or agent to chat."_s));
        return;
    }
    Msg message = localMsg(Who::You, text);
    message.pendingID = QUuid::createUuid().toString(QUuid::WithoutBraces);
    message.at = m_store.clock().now();
    message.follows = newestRow();
    message.attachments = m_store.attachments()->take();
    message.files = msgFiles(message.attachments);
    const Post sent{*target, message.id, message.pendingID, text, message.attachments};
    m_msgs.append(std::move(message));
    // A question asked from the canvas leaves what is being typed alone.
    if (m_draft.value().trimmed() == text)
        setDraft(QString());
    startTurn(sent);
    m_posts.start([this, sent](Cancel cancel) { return post(sent, std::move(cancel)); });
}

void ChatRoom::retry(const QString &messageId) {
    const qsizetype row = m_msgs.rowOf(QUuid::fromString(messageId));
    const auto target = m_store.scope()->chatTarget();
    if (row < 0 || !target || !m_msgs.messages().at(row).failed)
        return;
    Msg message = m_msgs.messages().at(row);
    message.failed = false;
    m_store.attachments()->withdraw(message.attachments);
    const Post again{*target, message.id, message.pendingID, message.text, message.attachments};
    m_msgs.update(row, std::move(message));
    startTurn(again);
    m_posts.start([this, again](Cancel cancel) { return post(again, std::move(cancel)); });
}

void ChatRoom::retryTurn() {
    const qsizetype row = m_msgs.rowOf(m_turn);
    if (row >= 0 && m_msgs.messages().at(row).failed) {
        retry(m_turn.toString(QUuid::WithoutBraces));
        return;
    }
    if (row >= 0)
        m_store.attachments()->putBack(m_msgs.messages().at(row).attachments);
    send(m_lastPrompt);
}

void ChatRoom::pickChip(const QString &messageId, const canvas::ReplyChip &chip) {
    const qsizetype row = m_msgs.rowOf(QUuid::fromString(messageId));
    if (row < 0)
        return;
    m_msgs.chooseChip(row, chip.label);
    send(chip.send);
}

void ChatRoom::startTurn(const Post &post) {
    m_turn = post.message;
    m_isAnswered = false;
    m_lastPrompt = post.text;
    m_unreadFrom = QString();
    m_chatNote = QString();
    m_liveWaiting = true;
    m_canStop = isStoppable();
    m_earlier = m_msgs.growing();
    if (!m_earlier.isNull())
        followEarlier();
    m_store.account()->leave();
    m_store.layout()->closeProfile();
    QSet<qint64> known;
    for (const Msg &message : m_msgs.messages()) {
        if (message.serverID)
            known.insert(*message.serverID);
    }
    m_store.canvas()->beginTurn(post.text, known);
    m_watchdog.restart([this](Cancel cancel) { return watchAnswer(std::move(cancel)); });
}

QCoro::Task<void> ChatRoom::watchAnswer(Cancel cancel) {
    co_await m_store.clock().sleep(answerPatience, std::move(cancel));
    // An answer that is being written has come; it settles by itself.
    const QUuid growing = m_msgs.growing();
    const bool isComing = !growing.isNull() && growing != m_earlier;
    if (!m_store.canvas()->awaitingAnswer() || isComing)
        co_return;
    if (!m_isAnswered) {
        failTurn();
        co_return;
    }
    endWaiting();
    m_store.canvas()->abandonTurn();
}

/// What an earlier answer still brings is not what this question waits for: it goes on being
/// written until nothing comes for a while, or this question's answer does.
void ChatRoom::followEarlier() {
    const QUuid growing = m_msgs.growing();
    if (!growing.isNull() && growing != m_earlier)
        return;
    m_msgs.setGrowing(m_earlier);
    m_earlierRest.restart([this](Cancel cancel) { return restEarlier(std::move(cancel)); });
}

QCoro::Task<void> ChatRoom::restEarlier(Cancel cancel) {
    co_await m_store.clock().sleep(CanvasRoom::settleTime, std::move(cancel));
    if (m_msgs.growing() == m_earlier)
        m_msgs.setGrowing({});
}

QCoro::Task<void> ChatRoom::post(Post post, Cancel cancel) {
    net::APIClient *client = &m_store.net();
    try {
        const QJsonArray attachments = attachmentBodies(post.attachments);
        net::ChatSendResult result;
        if (post.target.isAgent())
            result = co_await net::KivAPI::sendAgentChat(client, post.target.id(), post.text,
                                                         post.requestID, attachments, cancel);
        else
            result = co_await net::KivAPI::sendProjectChat(client, post.target.id(), post.text,
                                                           attachments, cancel);
        confirmPost(post, result);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        failPost(post, error);
    }
}

void ChatRoom::confirmPost(const Post &post, const net::ChatSendResult &result) {
    if (!result.message || !result.message->id)
        return;
    const qint64 id = *result.message->id;
    const qsizetype row = m_msgs.rowOf(post.message);
    if (row < 0) {
        // The person went elsewhere meanwhile; the row comes with that chat's history.
        m_unsent[post.target.streamPath()].removeIf(
            [&](const Msg &message) { return message.id == post.message; });
        return;
    }
    Msg confirmed = m_msgs.messages().at(row);
    if (confirmed.serverID)
        return; // the stream was faster
    const qsizetype shown = m_msgs.rowOfServerID(id);
    if (shown >= 0) {
        // The stream was faster and its text differs from what was typed: one row is enough.
        if (m_turn == post.message)
            m_turn = m_msgs.messages().at(shown).id;
        m_msgs.remove(row);
        return;
    }
    confirmed.serverID = id;
    confirmed.pendingID.clear();
    confirmed.failed = false;
    m_live.insert(id, confirmed);
    m_msgs.update(row, std::move(confirmed));
}

void ChatRoom::failPost(const Post &post, const std::exception &error) {
    if (net::isUnauthorized(error)) {
        m_store.session()->expire();
        return;
    }
    qsizetype row = m_msgs.rowOf(post.message);
    if (row < 0) {
        QList<Msg> &aside = m_unsent[post.target.streamPath()];
        const auto sent = std::ranges::find(aside, post.message, &Msg::id);
        if (sent == aside.end())
            return;
        if (post.target != m_connected) {
            sent->failed = true;
            return;
        }
        // A new chat has taken it off the screen: there it is again, to be sent anew.
        row = m_msgs.count();
        m_msgs.append(*sent);
        aside.erase(sent);
    }
    Msg failed = m_msgs.messages().at(row);
    if (failed.serverID)
        return; // the stream confirmed it: only the reply was lost
    failed.failed = true;
    m_store.attachments()->putBack(failed.attachments);
    m_msgs.update(row, std::move(failed));
    if (post.message == m_turn)
        failTurn();
    m_msgs.append(localMsg(Who::Agent, liveSendNote(error)));
}

void ChatRoom::failTurn() {
    endWaiting();
    m_store.canvas()->failTurn();
    Q_EMIT answerFailed();
}

void ChatRoom::endWaiting() {
    m_watchdog.cancel();
    m_liveWaiting = false;
    m_canStop = false;
    m_msgs.setGrowing({});
}

void ChatRoom::answerSettled(const QUuid &answer) {
    m_watchdog.cancel();
    m_canStop = false;
    m_msgs.setGrowing({});
    // An agent that answers may have done something worth an event.
    m_store.events()->loadEvents();
    Q_EMIT answerEnded(answer);
}

void ChatRoom::stopLive() {
    const auto target = m_store.scope()->chatTarget();
    if (!target || !target->isAgent())
        return;
    endWaiting();
    m_store.canvas()->abandonTurn();
    m_posts.start(
        [this, id = target->id()](Cancel cancel) { return stopAnswer(id, std::move(cancel)); });
}

QCoro::Task<void> ChatRoom::stopAnswer(QString agentID, Cancel cancel) {
    try {
        co_await net::KivAPI::stopAgentChat(&m_store.net(), agentID, std::move(cancel));
    } catch (const std::exception &) {
        // For the person the answer has stopped; the rest of it is shown and not drawn.
    }
}

void ChatRoom::newChat() {
    m_store.dictation()->stop();
    m_chatNote = QString();
    setUnsentAside();
    endWaiting();
    m_store.canvas()->abandonTurn();
    m_store.canvas()->clearCanvas();
    m_store.account()->leave();
    m_store.layout()->closeHistory();
    m_store.layout()->closeDock();
    m_clearedTo = newestRow();
    m_clearedAt = m_store.clock().now();
    const bool signedIn = m_store.scope()->auth() == AuthPhase::SignedIn;
    m_msgs.replaceAll({signedIn ? liveGreeting() : localMsg(Who::Agent, signedOutGreeting)});
    setFeedWindow(feedStep);
    m_seenMsgs = 1;
    m_unseenMsgs = 0;
    m_unreadFrom = QString();
    setDraft(QString());
    m_store.attachments()->clear();
}

Msg ChatRoom::liveGreeting() const {
    const ScopeRoom *scope = m_store.scope();
    if (const auto agent = scope->currentAgent())
        return localMsg(Who::Agent, agent->name + u" here. I only answer for my own work."_s);
    if (const auto project = scope->currentProject())
        return localMsg(Who::Agent,
                        project->name +
                            u" — project room here. Ask about anything in this project."_s);
    return localMsg(Who::Agent, u"KIV here. I see all projects and every agent under them."_s);
}

std::optional<qint64> ChatRoom::newestRow() const {
    const QList<Msg> &messages = m_msgs.messages();
    const auto found = std::find_if(messages.crbegin(), messages.crend(), [](const Msg &message) {
        return message.serverID.has_value();
    });
    return found != messages.crend() ? found->serverID : m_clearedTo;
}

} // namespace kiv::store
