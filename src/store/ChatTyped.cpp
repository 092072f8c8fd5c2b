// What the person typed in a chat and has not sent, whatever becomes of the session and the scope.

#include "store/AppStore.h"
#include "store/ChatRoom.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

QString joined(const QString &above, const QString &below) {
    const bool isBreakNeeded = !above.isEmpty() && !below.isEmpty();
    return above + (isBreakNeeded ? u"\n"_s : QString()) + below;
}

} // namespace

void ChatRoom::setDraft(const QString &draft) {
    m_draft = draft;
    if (m_connected)
        m_drafts.setText(m_store.scope()->userEmail(), m_connected->streamPath(), draft);
}

/// Each chat has a draft of its own. What was typed before it was clear whom it asks goes along.
void ChatRoom::enterChat(const std::optional<net::ChatTarget> &target) {
    // What was spoken belongs to the chat before.
    m_store.dictation()->stop();
    const QString undirected = m_connected ? QString() : m_draft.value();
    m_connected = target;
    m_lastPrompt = QString();
    m_unreadFrom = QString();
    setFeedWindow(feedStep);
    if (!target) {
        m_draft = undirected;
        return;
    }
    const ChatOfUser chat{m_store.scope()->userEmail(), target->streamPath()};
    setDraft(joined(m_drafts.text(chat.first, chat.second), undirected));
    m_store.dictation()->setCaret(static_cast<int>(m_draft.value().size()));
    m_store.attachments()->putBack(m_keptFiles.take(chat));
}

void ChatRoom::end() {
    m_store.dictation()->stop();
    m_posts.cancel();
    const QString user = m_store.scope()->userEmail();
    setUnsentAside();
    for (auto chat = m_unsent.cbegin(); chat != m_unsent.cend(); ++chat) {
        QString text;
        for (const Msg &message : chat.value()) {
            text = joined(text, message.text);
            m_keptFiles[{user, chat.key()}] += message.attachments;
        }
        m_drafts.setText(user, chat.key(), joined(text, m_drafts.text(user, chat.key())));
    }
}

/// The files of the next message wait for their person to come back.
void ChatRoom::keepFiles() {
    const QList<ChatAttachment> files = m_store.attachments()->take();
    if (m_connected && !files.isEmpty())
        m_keptFiles[{m_store.scope()->userEmail(), m_connected->streamPath()}] += files;
}

void ChatRoom::forgetTyped() {
    m_store.dictation()->stop();
    const QString user = m_store.scope()->userEmail();
    m_drafts.forget(user);
    m_store.attachments()->clear();
    m_keptFiles.removeIf([&](const auto &kept) { return kept.key().first == user; });
}

void ChatRoom::edit(const QString &messageId) {
    const qsizetype row = m_msgs.rowOf(QUuid::fromString(messageId));
    if (row < 0 || m_msgs.messages().at(row).who != Who::You)
        return;
    const Msg message = m_msgs.messages().at(row);
    setDraft(joined(m_draft.value().trimmed(), message.text));
    if (!message.failed)
        return;
    m_msgs.remove(row);
    m_store.attachments()->putBack(message.attachments);
    if (m_store.canvas()->state() == CanvasState::Failed)
        m_store.canvas()->clearCanvas();
}

void ChatRoom::askAgain(const QString &messageId) {
    const QList<Msg> &messages = m_msgs.messages();
    for (qsizetype row = m_msgs.rowOf(QUuid::fromString(messageId)); row >= 0; --row) {
        if (messages.at(row).who == Who::You && !messages.at(row).text.trimmed().isEmpty()) {
            send(messages.at(row).text);
            return;
        }
    }
}

} // namespace kiv::store
