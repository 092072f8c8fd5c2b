#pragma once

#include "base/Work.h"
#include "net/APIError.h"
#include "net/Decode.h"
#include "net/HttpSession.h"
#include "net/Multipart.h"

#include <QJsonObject>

namespace kiv::net {

/// The one way to the backend. Who is signed in is a matter of the cookie jar alone. Every call
/// throws APIError or, for a body that cannot be read, DecodingError; none is tried again.
/// Destroying the client cancels what runs on it.
class APIClient : public QObject {
    Q_OBJECT
public:
    using Query = QList<std::pair<QString, QString>>;

    /// `cookieFile` is where the session survives a restart, with `secrets` the key chain, which
    /// may be null. Clock, connectivity and key chain outlive the client.
    APIClient(Clock &clock, Connectivity &connectivity, QString cookieFile,
              SecretStore *secrets = nullptr, QObject *parent = nullptr);

    void setBaseUrl(const QUrl &url) { m_baseUrl = url; }
    const QUrl &baseUrl() const { return m_baseUrl; }
    PersistentCookieJar &cookies() { return m_cookies; }
    const HttpEnvironment &environment() const { return m_session.environment(); }
    Clock &clock() const { return *environment().clock; }

    /// A request to `path` (relative, its parts percent-encoded) with the headers that all carry.
    HttpRequest request(QByteArray method, const QString &path, const Query &query = {}) const;

    /// The answer, whatever its status.
    QCoro::Task<HttpResponse> fetch(HttpRequest request, Cancel cancel);
    /// The answer to a request that succeeded.
    QCoro::Task<HttpResponse> send(HttpRequest request, Cancel cancel);

    template <typename T>
    QCoro::Task<T> get(QString path, Query query, Cancel cancel) {
        const HttpResponse response = co_await send(request("GET", path, query), std::move(cancel));
        co_return decodeBody<T>(response.body);
    }
    QCoro::Task<QByteArray> postRaw(QString path, QJsonObject body, Cancel cancel);
    QCoro::Task<QByteArray> patch(QString path, QJsonObject body, Cancel cancel);
    QCoro::Task<QByteArray> postMultipart(QString path, QList<MultipartFile> files,
                                          UploadProgress progress, Cancel cancel);
    /// Posts without waiting for the outcome, which nobody learns.
    void postAndForget(QString path, QJsonObject body);

private:
    QCoro::Task<QByteArray> sendBody(HttpRequest request, QByteArray contentType, QByteArray body,
                                     Cancel cancel);

    QUrl m_baseUrl;
    PersistentCookieJar m_cookies;
    HttpSession m_session;
    Work m_forgotten;
};

} // namespace kiv::net
