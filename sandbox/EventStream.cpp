#include "EventStream.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

constexpr auto keepAlive = 15s;
/// How soon a connection that its peer has left is noticed.
constexpr auto lookRound = 500ms;

/// A place inside the first character of more than one byte; -1 when there is none.
qsizetype insideCharacter(const QByteArray &event) {
    const auto lead = std::find_if(event.begin(), event.end(),
                                   [](char c) { return static_cast<uchar>(c) >= 0xC0; });
    return lead == event.end() ? -1 : lead - event.begin() + 1;
}

/// The middle of an event, between two characters.
qsizetype betweenCharacters(const QByteArray &event) {
    qsizetype middle = event.size() / 2;
    while (middle > 0 && (static_cast<uchar>(event.at(middle)) & 0xC0) == 0x80)
        --middle;
    return middle;
}

} // namespace

EventStream::EventStream(ChatHub &hub, const ChatKey &key,
                         std::shared_ptr<ChatHub::Listener> listener, IsAllowed isAllowed,
                         std::optional<Fault> fault)
    : m_hub(hub),
      m_key(key),
      m_listener(std::move(listener)),
      m_isAllowed(std::move(isAllowed)),
      m_fault(std::move(fault)) {}

EventStream::~EventStream() {
    m_hub.leave(m_key, m_listener);
}

bool EventStream::due(Fault::Kind kind) const {
    return m_fault && m_fault->kind == kind && m_events >= m_fault->value;
}

bool EventStream::write(httplib::DataSink &sink, const QByteArray &bytes) {
    m_lastWrite = std::chrono::steady_clock::now();
    return sink.write(bytes.constData(), static_cast<size_t>(bytes.size()));
}

bool EventStream::writeEvent(httplib::DataSink &sink, const QByteArray &event) {
    if (due(Fault::HalfEvent)) {
        write(sink, event.first(betweenCharacters(event)));
        return false;
    }
    if (due(Fault::HalfCharacter)) {
        const qsizetype cut = insideCharacter(event);
        if (cut >= 0) {
            write(sink, event.first(cut));
            return false;
        }
    }
    ++m_events;
    return write(sink, event) && !due(Fault::StreamDrop);
}

bool EventStream::pump(httplib::DataSink &sink) {
    if (!m_greeted) {
        m_greeted = true;
        return write(sink, "event: ready\ndata: {}\n\n") && !due(Fault::StreamDrop);
    }
    QByteArray event;
    const ChatHub::Wait waited = m_listener->next(event, lookRound);
    if (!m_isAllowed()) {
        sink.done();
        return true;
    }
    switch (waited) {
    case ChatHub::Wait::Ended:
        sink.done();
        return true;
    case ChatHub::Wait::Event:
        return due(Fault::StreamStall) || writeEvent(sink, event);
    case ChatHub::Wait::Nothing:
        break;
    }
    if (!sink.is_writable())
        return false;
    const bool quiet = std::chrono::steady_clock::now() - m_lastWrite > keepAlive;
    return !quiet || due(Fault::StreamStall) || write(sink, ": keep-alive\n\n");
}

} // namespace kiv::sandbox
