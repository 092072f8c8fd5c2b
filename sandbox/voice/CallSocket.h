#pragma once

#include "Faults.h"

#include <QJsonObject>
#include <QWebSocket>

#include <functional>
#include <memory>

namespace kiv::sandbox {

/// The messages of one call's WebSocket: JSON both ways, within limits, and failing as ordered.
class CallSocket : public QObject {
public:
    struct Handlers {
        std::function<void(const QJsonObject &)> message;
        std::function<void(bool goodbye)> closed; ///< whether either side ended it on purpose
        std::function<void(double ms)> latency;   ///< the way there and back
    };

    /// `fault` cuts, spoils or silences what goes out.
    CallSocket(std::unique_ptr<QWebSocket> socket, std::optional<Fault> fault);
    ~CallSocket() override;

    void setHandlers(Handlers handlers) { m_handlers = std::move(handlers); }
    void send(const QJsonObject &message);
    /// Measures the latency, below the level of messages.
    void measure();
    void close(QWebSocketProtocol::CloseCode code, const QString &reason);
    /// Breaks the connection without a word, as a network does.
    void breakOff();

private:
    void receive(const QString &text);
    bool isFlooding();

    std::unique_ptr<QWebSocket> m_socket;
    std::optional<Fault> m_fault;
    Handlers m_handlers;
    int m_sent = 0;
    qint64 m_second = 0; ///< the second in which messages are counted
    int m_inSecond = 0;
    bool m_closing = false; ///< ended from this side
    bool m_breaking = false;
    bool m_goodbye = false; ///< ended on purpose by either
};

} // namespace kiv::sandbox
