#pragma once

#include "ChatHub.h"
#include "Faults.h"

#include <httplib.h>

#include <chrono>
#include <functional>
#include <optional>

namespace kiv::sandbox {

/// Writes one listener's events to its connection, with the faults that were ordered for it.
class EventStream {
public:
    /// Whether whoever asked for the stream is still signed in.
    using IsAllowed = std::function<bool()>;

    EventStream(ChatHub &hub, const ChatKey &key, std::shared_ptr<ChatHub::Listener> listener,
                IsAllowed isAllowed, std::optional<Fault> fault);
    ~EventStream();

    /// Waits for the next thing to write and writes it; false ends the connection.
    bool pump(httplib::DataSink &sink);

private:
    bool write(httplib::DataSink &sink, const QByteArray &bytes);
    bool writeEvent(httplib::DataSink &sink, const QByteArray &event);
    bool due(Fault::Kind kind) const;

    ChatHub &m_hub;
    const ChatKey m_key;
    const std::shared_ptr<ChatHub::Listener> m_listener;
    const IsAllowed m_isAllowed;
    const std::optional<Fault> m_fault;
    bool m_greeted = false;
    int m_events = 0;
    std::chrono::steady_clock::time_point m_lastWrite;
};

} // namespace kiv::sandbox
