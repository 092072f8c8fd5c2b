#pragma once

#include "base/Cancel.h"
#include "base/Clock.h"
#include "net/Connectivity.h"
#include "net/PersistentCookieJar.h"

#include <QCoroTask>
#include <QMap>
#include <QNetworkAccessManager>
#include <QUrl>

#include <functional>

namespace kiv::net {

/// What every connection needs of its surroundings. All of it outlives the sessions.
struct HttpEnvironment {
    Clock *clock;
    PersistentCookieJar *cookies;
    Connectivity *connectivity;
};

/// Told how many bytes of a request's body have left, of how many.
using UploadProgress = std::function<void(qint64 sent, qint64 total)>;

struct HttpRequest {
    QByteArray method;
    QUrl url;
    QMap<QByteArray, QByteArray> headers;
    QByteArray body;
    UploadProgress progress = {}; ///< may be empty
    /// How long nothing may move in either direction before the request fails.
    Clock::Milliseconds timeout{60'000};
};

struct HttpResponse {
    int status = 0;
    QByteArray body;
};

/// A set of connections with one cookie jar. Destroying it cancels what runs on it.
class HttpSession : public QObject {
    Q_OBJECT
public:
    explicit HttpSession(HttpEnvironment environment, QObject *parent = nullptr);

    const HttpEnvironment &environment() const { return m_environment; }

    /// The whole answer, whatever its status. Throws APIError (transport, cancelled).
    QCoro::Task<HttpResponse> fetch(HttpRequest request, Cancel cancel);

    enum class Credentials { Carry, Omit };
    /// Puts one request on the wire, once: redirects are not followed, and a request with a body
    /// is never repeated. The session owns the reply.
    QNetworkReply *begin(const HttpRequest &request, Credentials credentials);

private:
    HttpEnvironment m_environment;
    QNetworkAccessManager m_network;
};

} // namespace kiv::net
