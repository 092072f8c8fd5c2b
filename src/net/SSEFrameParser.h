#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace kiv::net {

/// The most that one line, or the data of one event, may hold. A stream that goes past it is
/// broken: APIError (transport) is thrown.
inline constexpr qsizetype streamEventLimit = 8 * 1024 * 1024;
[[noreturn]] void throwEventTooLarge();

/// One event of a server-sent-events stream, in UTF-8.
struct SSERawEvent {
    QByteArray event;
    QByteArray data;

    friend bool operator==(const SSERawEvent &, const SSERawEvent &) = default;
};

/// Puts the lines of one connection together to events.
class SSEFrameParser {
public:
    /// Takes a line without its end; an event when the line completes one.
    std::optional<SSERawEvent> feed(QByteArrayView line);

private:
    std::optional<SSERawEvent> dispatch();
    void appendData(QByteArrayView text);

    QByteArray m_event = "message";
    QByteArray m_data; ///< the data lines, joined by line feeds
    bool m_hasData = false;
};

} // namespace kiv::net
