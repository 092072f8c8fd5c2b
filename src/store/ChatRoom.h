#pragma once

#include "base/Cancel.h"
#include "base/Clock.h"
#include "base/Work.h"
#include "canvas/ReplyOptions.h"
#include "net/ChatTarget.h"
#include "store/Drafts.h"
#include "store/MessageModel.h"

#include <QObject>
#include <QProperty>

namespace kiv::store {

class AppStore;

/// The conversation with the current scope: opening it, sending, receiving, stopping.
class ChatRoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the store")
    Q_PROPERTY(kiv::store::MessageModel *msgs READ msgs CONSTANT)
    Q_PROPERTY(kiv::store::FeedModel *feedMsgs READ feedMsgs CONSTANT)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    Q_PROPERTY(int feedWindow READ feedWindow NOTIFY feedWindowChanged)
    Q_PROPERTY(int unseenMsgs READ unseenMsgs NOTIFY unseenMsgsChanged)
    /// The first message that came while no feed was shown; empty for none.
    Q_PROPERTY(QString unreadFrom READ unreadFrom NOTIFY unreadFromChanged)
    Q_PROPERTY(bool liveWaiting READ liveWaiting NOTIFY liveWaitingChanged)
    Q_PROPERTY(bool canStop READ canStop NOTIFY canStopChanged)
    Q_PROPERTY(bool historyLoading READ historyLoading NOTIFY historyLoadingChanged)
    Q_PROPERTY(QString chatNote READ chatNote NOTIFY chatNoteChanged)
    Q_PROPERTY(QString lastPrompt READ lastPrompt NOTIFY lastPromptChanged)
public:
    /// How many messages more a feed shows each time that its top is reached.
    static constexpr int feedStep = 30;

    ChatRoom(AppStore &store, const QString &draftsFile);

    MessageModel *msgs() { return &m_msgs; }
    FeedModel *feedMsgs() { return &m_feed; }
    QString draft() const { return m_draft; }
    void setDraft(const QString &draft);
    int feedWindow() const { return m_feedWindow; }
    int seenMsgs() const { return m_seenMsgs; }
    int unseenMsgs() const { return m_unseenMsgs; }
    QString unreadFrom() const { return m_unreadFrom; }
    bool liveWaiting() const { return m_liveWaiting; }
    /// A running answer of an agent can be stopped; a project room's cannot.
    bool canStop() const { return m_canStop; }
    bool historyLoading() const { return m_historyLoading; }
    QString chatNote() const { return m_chatNote; }
    QString lastPrompt() const { return m_lastPrompt; }
    int chatGen() const { return m_chatGen; }
    /// The chat that is connected; nothing before the first and after sign-out.
    const std::optional<net::ChatTarget> &connected() const { return m_connected; }

    Q_INVOKABLE void send(const QString &text);
    /// Sends what is typed, and what is being spoken into it.
    Q_INVOKABLE void sendDraft();
    /// Sends a reply that was offered under an answer.
    Q_INVOKABLE void pickChip(const QString &messageId, const kiv::canvas::ReplyChip &chip);
    Q_INVOKABLE void stopLive();
    Q_INVOKABLE void newChat();
    /// Sends a message that had failed once more, in its place.
    Q_INVOKABLE void retry(const QString &messageId);
    /// Puts a message of ours back into the draft, behind what is typed there; one that was not
    /// sent leaves the conversation, and its files are attached anew.
    Q_INVOKABLE void edit(const QString &messageId);
    /// Sends the question above an answer as a new one.
    Q_INVOKABLE void askAgain(const QString &messageId);
    /// Asks the question of the current turn once more: in its place when it was not sent.
    Q_INVOKABLE void retryTurn();
    /// Lets the short feed hold more of the conversation, as long as there is more.
    Q_INVOKABLE void showOlder();

    void connectChat();
    /// Loads and streams the connected chat anew, leaving the turn as it is.
    void refresh();
    void onLiveInsert(int gen, const net::ChatRow &row);
    /// The session ends: the connection, what is on its way in either direction and what could not
    /// be sent are dropped; files that were not sent wait for their person.
    void disconnectChat();
    void markSeen();
    /// The calls of a conversation are other ones: where it shows, they are put at their places.
    void placeCalls(const net::ChatTarget &target);
    /// Puts a line under the composer, or takes it away with an empty text.
    void showNote(const QString &note) { m_chatNote = note; }
    /// This answer is no longer waited for; the canvas says so when it has settled.
    void answerSettled(const QUuid &answer);
    /// The person leaves for good: nothing of what they typed is kept.
    void forgetTyped();
    /// The program or the session ends: what is not known to be sent is a draft when the person is
    /// back.
    void end();

Q_SIGNALS:
    /// The answer to the question of this turn is complete, as far as can be told.
    void answerEnded(const QUuid &answer);
    /// The question of this turn gets no answer.
    void answerFailed();
    void draftChanged();
    void feedWindowChanged();
    void seenMsgsChanged();
    void unseenMsgsChanged();
    void unreadFromChanged();
    void liveWaitingChanged();
    void canStopChanged();
    void historyLoadingChanged();
    void chatNoteChanged();
    void lastPromptChanged();

private:
    /// Why the rows of a chat are loaded: it is entered, its line was lost, or its line stands now
    /// and what came before that may be missing.
    enum class Reason { Entered, LineLost, LineStands };
    /// How soon a page that did not come is asked for again, or a line that was refused.
    static constexpr Clock::Milliseconds firstPause{2000};
    struct Post {
        net::ChatTarget target;
        QUuid message;
        QString requestID;
        QString text;
        QList<ChatAttachment> attachments;
    };

    void sendLive(const QString &text);
    void startTurn(const Post &post);
    QCoro::Task<void> post(Post post, Cancel cancel);
    void confirmPost(const Post &post, const net::ChatSendResult &result);
    void failPost(const Post &post, const std::exception &error);
    QCoro::Task<void> watchAnswer(Cancel cancel);
    void followEarlier();
    QCoro::Task<void> restEarlier(Cancel cancel);
    void openLine(const net::ChatTarget &target, Reason reason);
    QCoro::Task<void> afterRefusal(Cancel cancel);
    QCoro::Task<void> loadHistory(int gen, net::ChatTarget target, Reason reason, Cancel cancel);
    /// Whether a new chat has taken this row off the screen.
    bool isCleared(qint64 row) const { return m_clearedTo && row <= *m_clearedTo; }
    void clearTo(const QList<net::ChatRow> &rows);
    QList<Msg> takeUnsent();
    /// Whether the screen lacks nothing of these rows.
    bool showsAll(const QList<net::ChatRow> &rows) const;
    void showHistory(const QList<net::ChatRow> &rows, Reason reason);
    void resumeTurn();
    QCoro::Task<void> stopAnswer(QString agentID, Cancel cancel);
    bool isStoppable() const { return m_connected && m_connected->isAgent(); }
    void failTurn();
    void endWaiting();
    bool isShown() const;
    void countUnseen();
    void setFeedWindow(int window);
    void confirm(qsizetype row, Msg stored);
    void setUnsentAside();
    void takeFromAside(Msg &stored);
    void keepFiles();
    void enterChat(const std::optional<net::ChatTarget> &target);
    std::optional<Msg> newestAnswer() const;
    QString newestQuestion() const;
    std::optional<qint64> newestRow() const;
    Msg liveGreeting() const;

    AppStore &m_store;
    MessageModel m_msgs;
    FeedModel m_feed;
    int m_chatGen = 0;
    QUuid m_turn; ///< the message whose answer is waited for
    /// A row that nothing can be added to has answered it; a longer answer may still come.
    bool m_isAnswered = false;
    std::optional<net::ChatTarget> m_connected;
    /// Messages of other scopes that the server has not stored, by the path of their chat.
    QHash<QString, QList<Msg>> m_unsent;
    /// An answer that was being written when the next question was sent; null for none.
    QUuid m_earlier;
    /// Rows that came since the last history page was asked for; the page may not hold them.
    QHash<qint64, Msg> m_live;
    /// The line was opened after the last history page was asked for: what came before is on the
    /// page, what came after on the line, and what came between on neither.
    bool m_isPageEarly = false;
    /// The last row that a new chat has taken off the screen, until the chat is entered anew; 0 for
    /// none, nothing while the rows of the chat are not here.
    std::optional<qint64> m_clearedTo;
    /// When the new chat was begun that this chat shows; nothing while it shows the whole.
    std::optional<QDateTime> m_clearedAt;
    bool m_hasOlderRows = false; ///< the server has rows before the first that was loaded
    Drafts m_drafts;
    /// Of an expired session: files that wait for their person, by who it is and the chat's path.
    using ChatOfUser = std::pair<QString, QString>;
    QHash<ChatOfUser, QList<ChatAttachment>> m_keptFiles;

    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, QString, m_draft, &ChatRoom::draftChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, int, m_feedWindow, &ChatRoom::feedWindowChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, int, m_seenMsgs, &ChatRoom::seenMsgsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, int, m_unseenMsgs, &ChatRoom::unseenMsgsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, QString, m_unreadFrom, &ChatRoom::unreadFromChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, bool, m_liveWaiting, &ChatRoom::liveWaitingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, bool, m_canStop, &ChatRoom::canStopChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, bool, m_historyLoading, &ChatRoom::historyLoadingChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, QString, m_chatNote, &ChatRoom::chatNoteChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ChatRoom, QString, m_lastPrompt, &ChatRoom::lastPromptChanged)

    Clock::Milliseconds m_refusedPause = firstPause;

    Work m_connection;
    Work m_refusal;
    Work m_posts;
    Work m_watchdog;
    Work m_earlierRest;
};

} // namespace kiv::store
