#include "net/HttpSession.h"

#include "net/HttpExchange.h"

#include <QIODevice>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <algorithm>
#include <cstring>

namespace kiv::net {

namespace {

/// Of an answer that is fetched whole: no list of the backend is near it.
constexpr qsizetype largestAnswer = 64 * 1024 * 1024;

/// A request body that can be read once only. When a kept-alive connection turns out to be dead,
/// the network layer rewinds the body and sends the request again behind our back, though the
/// server may have acted on the first one; a body that was begun refuses, which fails the request
/// instead. One that was not begun, as when a connection is closed under it because the request
/// before was given up, has reached nobody and goes out on the next connection. Once
/// there is an answer it may be rewound, which is done for redirects whether followed or not.
class SinglePassBody : public QIODevice {
public:
    explicit SinglePassBody(QByteArray bytes) : m_bytes(std::move(bytes)) { open(ReadOnly); }
    bool isSequential() const override { return true; }
    void setAnswered() { m_answered = true; }
    bool reset() override {
        const bool isUntouched = m_read == 0;
        if (m_answered)
            m_read = 0;
        return m_answered || isUntouched;
    }
    qint64 bytesAvailable() const override {
        return m_bytes.size() - m_read + QIODevice::bytesAvailable();
    }

protected:
    qint64 readData(char *to, qint64 limit) override {
        const qint64 count = std::min<qint64>(limit, m_bytes.size() - m_read);
        if (count == 0)
            return -1;
        std::memcpy(to, m_bytes.constData() + m_read, static_cast<size_t>(count));
        m_read += count;
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qsizetype m_read = 0;
    bool m_answered = false;
};

QNetworkRequest wireForm(const HttpRequest &request, HttpSession::Credentials credentials) {
    QNetworkRequest wire(request.url);
    for (auto header = request.headers.cbegin(); header != request.headers.cend(); ++header)
        wire.setRawHeader(header.key(), header.value());
    wire.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                      QNetworkRequest::ManualRedirectPolicy);
    // Giving a request up closes its connection, so that the next one cannot inherit a dead one.
    wire.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    if (credentials == HttpSession::Credentials::Omit) {
        wire.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        wire.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    }
    return wire;
}

} // namespace

HttpSession::HttpSession(HttpEnvironment environment, QObject *parent)
    : QObject(parent), m_environment(environment) {
    QObject *owner = environment.cookies->parent();
    m_network.setCookieJar(environment.cookies);
    environment.cookies->setParent(owner); // shared: no manager may own it
}

QCoro::Task<HttpResponse> HttpSession::fetch(HttpRequest request, Cancel cancel) {
    HttpExchange exchange(this, std::move(request), std::move(cancel));
    HttpResponse response;
    response.status = co_await exchange.open();
    for (;;) {
        const QByteArray piece = co_await exchange.read();
        if (piece.isEmpty())
            break;
        if (piece.size() > largestAnswer - response.body.size())
            throw APIError::transport(HttpExchange::tr("The server's answer is too large."));
        response.body += piece;
    }
    co_return response;
}

QNetworkReply *HttpSession::begin(const HttpRequest &request, Credentials credentials) {
    QNetworkRequest wire = wireForm(request, credentials);
    if (request.method == "GET")
        return m_network.get(wire);
    wire.setHeader(QNetworkRequest::ContentLengthHeader, request.body.size());
    wire.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    auto *body = new SinglePassBody(request.body);
    QNetworkReply *reply = m_network.sendCustomRequest(wire, request.method, body);
    body->setParent(reply);
    QObject::connect(reply, &QNetworkReply::metaDataChanged, body, [body] { body->setAnswered(); });
    return reply;
}

} // namespace kiv::net
