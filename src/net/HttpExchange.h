#pragma once

#include "net/APIError.h"
#include "net/HttpSession.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QPointer>

#include <coroutine>

namespace kiv::net {

/// One request and its answer, piece by piece: waits for connectivity, follows redirects, watches
/// for silence. Lives in the frame of the coroutine that reads it; destroying it aborts the
/// request. Everything throws APIError (transport, cancelled).
class HttpExchange {
    Q_DECLARE_TR_FUNCTIONS(HttpExchange)
public:
    HttpExchange(HttpSession *session, HttpRequest request, Cancel cancel);
    HttpExchange(const HttpExchange &) = delete;
    HttpExchange &operator=(const HttpExchange &) = delete;
    ~HttpExchange();

    /// Sends the request; the status of the answer.
    QCoro::Task<int> open();
    /// The next bytes of the body; empty at its end.
    QCoro::Task<QByteArray> read();
    /// Bounds what the network layer holds back for a reader that is slower than the wire.
    void setReadBufferSize(qint64 size) { m_readBufferSize = size; }

private:
    enum class Stage { Reachable, Headers, Bytes };
    /// Suspends the reader until a stage is reached or the exchange has failed.
    struct Arrival;

    bool reached(Stage stage) const;
    int status() const;
    bool isCutShort() const;
    void begin();
    void redirect(const QUrl &target);
    std::optional<QUrl> redirectTarget() const;

    void stirred();
    void look();
    void fail(APIError error);
    void dropReply();

    QPointer<HttpSession> m_session;
    HttpRequest m_request;
    const QUrl m_origin;
    HttpSession::Credentials m_credentials = HttpSession::Credentials::Carry;
    qint64 m_readBufferSize = 0;
    qint64 m_received = 0;
    QPointer<QNetworkReply> m_reply;
    std::optional<APIError> m_failure;
    QObject m_context;
    Clock::Timer m_silence;
    Cancel::Link m_cancelled;
    bool m_lookQueued = false;
    Stage m_awaited = Stage::Reachable;
    std::coroutine_handle<> m_reader;
};

} // namespace kiv::net
