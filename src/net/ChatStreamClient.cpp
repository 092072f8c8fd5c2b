#include "net/ChatStreamClient.h"

#include "net/HttpExchange.h"
#include "net/LineSplitter.h"

#include <algorithm>

namespace kiv::net {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Clock::Milliseconds silenceLimit = 35s;
constexpr Clock::Milliseconds firstDelay = 1s;
constexpr Clock::Milliseconds longestDelay = 30s;
/// More than this waits in the socket, not in memory.
constexpr qint64 readBufferSize = 1024 * 1024;

/// The row that an event carries, if it carries one that can be read.
std::optional<ChatRow> rowOf(const SSERawEvent &event) {
    if (event.event != "message-insert" && event.event != "message")
        return std::nullopt;
    try {
        return decodeBody<ChatRow>(event.data);
    } catch (const DecodingError &) {
        return std::nullopt;
    }
}

/// The loop below. A callback may destroy the stream client, so that nothing of this is touched
/// after one without asking `cancel` first.
struct Stream {
    APIClient *client;
    HttpSession *session;
    QString path;
    ChatStreamClient::Callbacks callbacks;
};

/// Reads one connection to its end.
QCoro::Task<void> connectOnce(const Stream *stream, Cancel cancel) {
    HttpRequest request = stream->client->request("GET"_ba, stream->path);
    request.headers.insert("Accept"_ba, "text/event-stream"_ba);
    // A compressing proxy would hold events back until they fill a block.
    request.headers.insert("Accept-Encoding"_ba, "identity"_ba);
    request.timeout = silenceLimit;
    HttpExchange exchange(stream->session, std::move(request), cancel);
    exchange.setReadBufferSize(readBufferSize);
    const int status = co_await exchange.open();
    if (status == 401)
        throw APIError::unauthorized(u"Unauthorized"_s);
    if (status < 200 || status > 299)
        throw APIError::server(status, u"stream HTTP %1"_s.arg(status));

    stream->callbacks.onOpen();
    cancel.throwIfRequested();
    LineSplitter lines;
    SSEFrameParser frames;
    for (;;) {
        const QByteArray piece = co_await exchange.read();
        if (piece.isEmpty())
            break;
        lines.feed(piece, [&](QByteArrayView line) {
            const auto event = frames.feed(line);
            const auto row = event ? rowOf(*event) : std::nullopt;
            if (row) {
                stream->callbacks.onMessage(*row);
                cancel.throwIfRequested();
            }
        });
    }
}

/// Reconnects until it is cancelled or the backend asks for a sign-in. The delay only grows: a
/// backend that keeps dropping streams is not to be pressed.
QCoro::Task<void> keepConnected(Stream stream, Clock *clock, Cancel cancel) {
    for (auto delay = firstDelay;; delay = std::min(2 * delay, longestDelay)) {
        auto pause = firstDelay;
        try {
            co_await connectOnce(&stream, cancel);
        } catch (const APIError &error) {
            cancel.throwIfRequested();
            if (isCancellation(error))
                co_return;
            if (error.kind() == APIError::Kind::Unauthorized) {
                stream.callbacks.onRefused();
                co_return;
            }
            pause = delay;
        }
        co_await clock->sleep(pause, cancel);
        stream.callbacks.onReconnect();
        cancel.throwIfRequested();
    }
}

} // namespace

ChatStreamClient::ChatStreamClient(APIClient &client, QObject *parent)
    : QObject(parent), m_client(client), m_session(client.environment()) {}

void ChatStreamClient::start(QString path, Callbacks callbacks) {
    Stream stream{&m_client, &m_session, std::move(path), std::move(callbacks)};
    m_loop.restart([&](Cancel cancel) {
        return keepConnected(std::move(stream), &m_client.clock(), std::move(cancel));
    });
}

} // namespace kiv::net
