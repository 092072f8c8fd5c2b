#include "ChatHub.h"

namespace kiv::sandbox {

namespace {

constexpr size_t mostStreams = 64;
/// A listener this far behind is let go: it reads the history when it comes back.
constexpr size_t longestQueue = 512;

} // namespace

ChatHub::Wait ChatHub::Listener::next(QByteArray &event, std::chrono::milliseconds patience) {
    std::unique_lock lock(m_mutex);
    m_wake.wait_for(lock, patience, [this] { return m_ended || !m_events.empty(); });
    if (m_ended)
        return Wait::Ended;
    if (m_events.empty())
        return Wait::Nothing;
    event = std::move(m_events.front());
    m_events.pop_front();
    return Wait::Event;
}

std::shared_ptr<ChatHub::Listener> ChatHub::listen(const ChatKey &key) {
    const std::lock_guard lock(m_mutex);
    if (m_closed || m_count >= mostStreams)
        return nullptr;
    auto listener = std::make_shared<Listener>();
    m_listeners[key].insert(listener);
    ++m_count;
    return listener;
}

void ChatHub::leave(const ChatKey &key, const std::shared_ptr<Listener> &listener) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_listeners.find(key);
    if (found == m_listeners.end())
        return;
    m_count -= found->second.erase(listener);
    if (found->second.empty())
        m_listeners.erase(found);
}

void ChatHub::publish(const ChatKey &key, const QByteArray &event) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_listeners.find(key);
    if (found == m_listeners.end())
        return;
    for (const auto &listener : found->second) {
        const std::lock_guard one(listener->m_mutex);
        listener->m_events.push_back(event);
        listener->m_ended = listener->m_ended || listener->m_events.size() > longestQueue;
        listener->m_wake.notify_one();
    }
}

void ChatHub::end(Listener &listener) {
    const std::lock_guard lock(listener.m_mutex);
    listener.m_ended = true;
    listener.m_wake.notify_one();
}

void ChatHub::close() {
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    for (const auto &[key, listeners] : m_listeners) {
        for (const auto &listener : listeners)
            end(*listener);
    }
}

} // namespace kiv::sandbox
