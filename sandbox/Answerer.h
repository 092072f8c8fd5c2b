#pragma once

#include "ChatStore.h"
#include "answers/Answer.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace kiv::sandbox {

class ChatHub;

/// Lets answers grow: after a pause for thought one row appears, and is stored and published again
/// with every piece that is added to it. The answers of one conversation come one after another.
class Answerer {
public:
    using Compose = std::function<Answer()>;

    /// `pace` scales every wait: 1 is life-like, 0 adds piece to piece at once.
    Answerer(ChatStore &chats, ChatHub &hub, double pace);
    ~Answerer();
    Answerer(const Answerer &) = delete;
    Answerer &operator=(const Answerer &) = delete;

    /// `compose` runs on this object's thread when the answer's turn comes.
    void begin(const ChatKey &key, const QString &origin, Compose compose);
    /// Whether an answer is under way in the conversation.
    bool isAnswering(const ChatKey &key);
    /// Ends what is under way in the conversation where it stands; false when nothing was.
    bool stop(const ChatKey &key);
    /// Ends everything; what was published stays.
    void close();

private:
    using Clock = std::chrono::steady_clock;

    struct Growth {
        QString origin;
        Compose compose;
        Answer answer;
        QList<qsizetype> cuts; ///< lengths that are shown one after another; empty before the start
        qsizetype shown = 0;   ///< how many of them have been
        ChatMessage message;
        Clock::time_point due;
    };

    void work();
    /// One more piece; false when the answer is whole.
    bool grow(const ChatKey &key, Growth &growth);
    void showUnstored(const ChatKey &key, Growth &growth, const std::exception &error);
    void show(const ChatKey &key, Growth &growth, qsizetype length);
    Clock::duration paced(std::chrono::milliseconds time) const;

    ChatStore &m_chats;
    ChatHub &m_hub;
    const double m_pace;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::map<ChatKey, std::deque<Growth>> m_growing;
    bool m_closed = false;
    std::thread m_thread;
};

/// The event that carries a row on a chat's stream.
QByteArray rowEvent(const QJsonObject &row);

} // namespace kiv::sandbox
