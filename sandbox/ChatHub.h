#pragma once

#include "ChatStore.h"

#include <QByteArray>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <set>

namespace kiv::sandbox {

/// Who listens to which conversation. Publishing never waits for a listener.
class ChatHub {
public:
    enum class Wait { Event, Nothing, Ended };

    /// One open stream.
    class Listener {
    public:
        /// Waits for the next event. Ended when the server goes down or the listener was too slow.
        Wait next(QByteArray &event, std::chrono::milliseconds patience);

    private:
        friend class ChatHub;
        std::mutex m_mutex;
        std::condition_variable m_wake;
        std::deque<QByteArray> m_events;
        bool m_ended = false;
    };

    /// Null when too many streams are open or the hub is closed.
    std::shared_ptr<Listener> listen(const ChatKey &key);
    void leave(const ChatKey &key, const std::shared_ptr<Listener> &listener);
    void publish(const ChatKey &key, const QByteArray &event);
    /// Releases every listener; nobody can listen afterwards.
    void close();

private:
    static void end(Listener &listener);

    std::mutex m_mutex;
    std::map<ChatKey, std::set<std::shared_ptr<Listener>>> m_listeners;
    size_t m_count = 0;
    bool m_closed = false;
};

} // namespace kiv::sandbox
