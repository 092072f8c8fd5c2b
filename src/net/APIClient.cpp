#include "net/APIClient.h"

#include "base/BaseUrl.h"

#include <QJsonDocument>

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

/// As `application/x-www-form-urlencoded` readers expect it: a plus sign must not become a space.
QString queryText(const APIClient::Query &query) {
    QByteArrayList pairs;
    for (const auto &[name, value] : query)
        pairs.append(QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value));
    return QString::fromLatin1(pairs.join('&'));
}

QByteArray toJson(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QCoro::Task<void> ignoreFailure(QCoro::Task<QByteArray> task) {
    try {
        co_await task;
    } catch (const std::exception &) {
        // Nobody waits for the outcome.
    }
}

} // namespace

APIClient::APIClient(Clock &clock, Connectivity &connectivity, QString cookieFile,
                     SecretStore *secrets, QObject *parent)
    : QObject(parent),
      m_cookies(std::move(cookieFile), &clock, secrets),
      m_session(HttpEnvironment{&clock, &m_cookies, &connectivity}) {}

HttpRequest APIClient::request(QByteArray method, const QString &path, const Query &query) const {
    HttpRequest request;
    request.method = std::move(method);
    request.url = appendPath(m_baseUrl, path);
    if (!query.isEmpty())
        request.url.setQuery(queryText(query), QUrl::StrictMode);
    request.headers.insert("Accept"_ba, "application/json"_ba);
    request.headers.insert("Origin"_ba, originOf(m_baseUrl).toLatin1());
    return request;
}

QCoro::Task<HttpResponse> APIClient::fetch(HttpRequest request, Cancel cancel) {
    return m_session.fetch(std::move(request), std::move(cancel));
}

QCoro::Task<HttpResponse> APIClient::send(HttpRequest request, Cancel cancel) {
    HttpResponse response = co_await m_session.fetch(std::move(request), std::move(cancel));
    throwIfError(response.status, response.body);
    co_return response;
}

QCoro::Task<QByteArray> APIClient::postRaw(QString path, QJsonObject body, Cancel cancel) {
    return sendBody(request("POST"_ba, path), "application/json"_ba, toJson(body),
                    std::move(cancel));
}

QCoro::Task<QByteArray> APIClient::patch(QString path, QJsonObject body, Cancel cancel) {
    return sendBody(request("PATCH"_ba, path), "application/json"_ba, toJson(body),
                    std::move(cancel));
}

QCoro::Task<QByteArray> APIClient::postMultipart(QString path, QList<MultipartFile> files,
                                                 UploadProgress progress, Cancel cancel) {
    const QByteArray boundary = newMultipartBoundary();
    HttpRequest upload = request("POST"_ba, path);
    upload.progress = std::move(progress);
    return sendBody(std::move(upload), "multipart/form-data; boundary="_ba + boundary,
                    multipartBody(files, boundary), std::move(cancel));
}

void APIClient::postAndForget(QString path, QJsonObject body) {
    m_forgotten.start([&](Cancel cancel) {
        return ignoreFailure(postRaw(std::move(path), std::move(body), std::move(cancel)));
    });
}

QCoro::Task<QByteArray> APIClient::sendBody(HttpRequest request, QByteArray contentType,
                                            QByteArray body, Cancel cancel) {
    request.headers.insert("Content-Type"_ba, std::move(contentType));
    request.body = std::move(body);
    HttpResponse response = co_await send(std::move(request), std::move(cancel));
    co_return std::move(response.body);
}

} // namespace kiv::net
