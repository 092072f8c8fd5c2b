#include "net/HttpExchange.h"

#include "base/Await.h"
#include "base/BaseUrl.h"

#include <QCoreApplication>

#include <utility>

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

constexpr int redirectLimit = 10;

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

/// Whether a finished reply lacks a whole answer, as against one whose status is no success:
/// the network layer reports both as errors.
bool isBroken(QNetworkReply::NetworkError error, int status) {
    if (error == QNetworkReply::NoError)
        return false;
    if (status < 400 || error == QNetworkReply::ContentReSendError ||
        error == QNetworkReply::ProtocolFailure)
        return true;
    const bool demandsProxyLogin = status == 407;
    return error < QNetworkReply::ContentAccessDenied && !demandsProxyLogin;
}

/// Why no answer came. The network layer has no words for a kept connection that the server ended.
QString failureText(const QNetworkReply &reply) {
    if (reply.error() == QNetworkReply::UnknownNetworkError)
        return HttpExchange::tr("The server ended the connection.");
    return reply.errorString();
}

/// Keeps what the network layer's own thread still tells from a reply that was given up: a second
/// error is warned of.
class Deafness : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *event) override {
        return event->type() == QEvent::MetaCall;
    }
};

} // namespace

struct HttpExchange::Arrival {
    HttpExchange *exchange;
    Stage stage;

    bool ready() const { return exchange->reached(stage); }
    void suspend(std::coroutine_handle<> reader) {
        exchange->m_awaited = stage;
        exchange->m_reader = reader;
    }
    void result() const {
        if (exchange->m_failure)
            throw APIError(*exchange->m_failure);
    }
};

HttpExchange::HttpExchange(HttpSession *session, HttpRequest request, Cancel cancel)
    : m_session(session), m_request(std::move(request)), m_origin(m_request.url) {
    const auto cancelled = [this] { fail(APIError::cancelled()); };
    if (cancel.requested())
        cancelled();
    cancel.link(m_cancelled, cancelled);
    QObject::connect(session, &QObject::destroyed, &m_context, cancelled);
    QObject::connect(session->environment().connectivity, &Connectivity::changed, &m_context,
                     [this] { look(); });
    stirred();
}

HttpExchange::~HttpExchange() {
    dropReply();
}

QCoro::Task<int> HttpExchange::open() {
    Arrival reachable{this, Stage::Reachable};
    co_await waitFor(reachable);
    for (int redirects = 0;; ++redirects) {
        begin();
        Arrival headers{this, Stage::Headers};
        co_await waitFor(headers);
        if (status() == 0) {
            const bool broken = m_reply->error() != QNetworkReply::NoError;
            throw APIError::transport(broken ? failureText(*m_reply) : u"Non-HTTP response"_s);
        }
        const auto target = redirectTarget();
        if (!target)
            co_return status();
        if (redirects == redirectLimit)
            throw APIError::transport(tr("The server redirected the request too many times."));
        redirect(*target);
    }
}

QCoro::Task<QByteArray> HttpExchange::read() {
    Arrival bytes{this, Stage::Bytes};
    co_await waitFor(bytes);
    const QByteArray piece = m_reply->readAll();
    m_received += piece.size();
    if (piece.isEmpty()) {
        if (isBroken(m_reply->error(), status()))
            throw APIError::transport(m_reply->errorString());
        if (isCutShort())
            throw APIError::transport(tr("The connection ended before the answer did."));
    }
    co_return piece;
}

/// The network layer takes a connection that ends early for the end of the body.
bool HttpExchange::isCutShort() const {
    bool announced = false;
    const qint64 length = m_reply->rawHeader("Content-Length").toLongLong(&announced);
    const bool isBare = status() == 204 || status() == 304;
    return announced && !isBare && !m_reply->hasRawHeader("Content-Encoding") &&
           m_received < length;
}

bool HttpExchange::reached(Stage stage) const {
    if (m_failure)
        return true;
    switch (stage) {
    case Stage::Reachable:
        return m_session->environment().connectivity->reaches(m_request.url);
    case Stage::Headers:
        return status() != 0 || m_reply->isFinished();
    case Stage::Bytes:
        return m_reply->bytesAvailable() > 0 || m_reply->isFinished();
    }
    Q_UNREACHABLE();
}

int HttpExchange::status() const {
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

void HttpExchange::begin() {
    dropReply();
    m_reply = m_session->begin(m_request, m_credentials);
    m_reply->setReadBufferSize(m_readBufferSize);
    // The reader goes on from the event loop, not from inside the network layer's signals: it may
    // destroy the session.
    const auto moved = [this] {
        stirred();
        if (!std::exchange(m_lookQueued, true))
            QMetaObject::invokeMethod(
                &m_context,
                [this] {
                    m_lookQueued = false;
                    look();
                },
                Qt::QueuedConnection);
    };
    QObject::connect(m_reply, &QNetworkReply::uploadProgress, &m_context,
                     [this, moved](qint64 sent) {
                         moved();
                         // A copy: whoever is told may give the request up. The network layer does
                         // not know the size of a body that can be read once only; we do.
                         const auto progress = m_request.progress;
                         if (progress && sent > 0)
                             progress(sent, m_request.body.size());
                     });
    QObject::connect(m_reply, &QNetworkReply::metaDataChanged, &m_context, moved);
    QObject::connect(m_reply, &QNetworkReply::readyRead, &m_context, moved);
    QObject::connect(m_reply, &QNetworkReply::finished, &m_context, moved);
}

std::optional<QUrl> HttpExchange::redirectTarget() const {
    const QByteArray location = m_reply->rawHeader("Location");
    if (!isRedirect(status()) || location.isEmpty())
        return std::nullopt;
    return m_request.url.resolved(QUrl::fromEncoded(location));
}

/// A new address on the same server gets the request as browsers send it there. Any other server
/// gets a bare question: neither cookie nor body, and none after it.
void HttpExchange::redirect(const QUrl &target) {
    const bool secured = target.scheme() == u"https"_s;
    if (!secured && (target.scheme() != u"http"_s || m_origin.scheme() == u"https"_s))
        throw APIError::transport(tr("The server redirected the request to an unsafe address."));
    if (!isSameOrigin(m_origin, target))
        m_credentials = HttpSession::Credentials::Omit;
    const bool repeats =
        status() == 307 || status() == 308 || (status() != 303 && m_request.method != "POST");
    if (!repeats || m_credentials == HttpSession::Credentials::Omit) {
        m_request.method = "GET"_ba;
        m_request.body.clear();
        m_request.headers.remove("Content-Type"_ba);
    }
    m_request.url = target;
}

void HttpExchange::stirred() {
    if (m_failure)
        return;
    m_silence = m_session->environment().clock->after(m_request.timeout, [this] {
        fail(APIError::transport(m_reply ? tr("The server did not answer in time.")
                                         : tr("There is no network connection.")));
    });
}

void HttpExchange::look() {
    if (m_reader && reached(m_awaited))
        std::exchange(m_reader, {}).resume();
}

void HttpExchange::fail(APIError error) {
    if (m_failure)
        return;
    m_failure = std::move(error);
    m_silence.stop();
    m_cancelled.unlink();
    dropReply();
    look();
}

void HttpExchange::dropReply() {
    if (!m_reply)
        return;
    m_reply->disconnect(&m_context);
    m_reply->abort();
    m_reply->installEventFilter(new Deafness(m_reply));
    m_reply->deleteLater();
    m_reply.clear();
}

} // namespace kiv::net
