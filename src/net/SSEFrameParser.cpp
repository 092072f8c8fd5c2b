#include "net/SSEFrameParser.h"

#include "net/APIError.h"

#include <QCoreApplication>

#include <utility>

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

const QByteArray defaultEvent = "message"_ba;

/// What stands after `name` and, if there is one, a space; nothing for a line of another field.
std::optional<QByteArrayView> fieldValue(QByteArrayView line, QByteArrayView name) {
    if (!line.startsWith(name))
        return std::nullopt;
    const QByteArrayView value = line.sliced(name.size());
    return value.startsWith(' ') ? value.sliced(1) : value;
}

} // namespace

void throwEventTooLarge() {
    throw APIError::transport(QCoreApplication::translate(
        "SSEFrameParser", "The server sent an event that is too large."));
}

std::optional<SSERawEvent> SSEFrameParser::feed(QByteArrayView line) {
    if (line.isEmpty())
        return dispatch();
    if (const auto data = fieldValue(line, "data:"))
        appendData(*data);
    else if (const auto event = fieldValue(line, "event:"))
        m_event = event->toByteArray();
    return std::nullopt; // comments, event ids and retry hints mean nothing here
}

/// A blank line after a named event yields it even without data; stray blank lines yield nothing.
std::optional<SSERawEvent> SSEFrameParser::dispatch() {
    SSERawEvent frame{std::exchange(m_event, defaultEvent), std::exchange(m_data, QByteArray())};
    m_hasData = false;
    if (frame.data.isEmpty() && frame.event == defaultEvent)
        return std::nullopt;
    return frame;
}

void SSEFrameParser::appendData(QByteArrayView text) {
    if (m_data.size() + text.size() >= streamEventLimit)
        throwEventTooLarge();
    if (std::exchange(m_hasData, true))
        m_data += '\n';
    m_data += text;
}

} // namespace kiv::net
