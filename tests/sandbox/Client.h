#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <httplib.h>

namespace kiv::test {

struct Response {
    int status = 0; ///< 0 when the connection gave no reply
    QByteArray body;
    QByteArray cookie; ///< the whole Set-Cookie header

    QJsonObject json() const { return QJsonDocument::fromJson(body).object(); }
    QJsonArray list() const { return QJsonDocument::fromJson(body).array(); }
    QString error() const { return json().value(QStringLiteral("error")).toString(); }
    QString code() const { return json().value(QStringLiteral("code")).toString(); }
};

/// A plain HTTP client with a cookie: deliberately not the program's own.
class Client {
public:
    explicit Client(int port);

    Response get(const QString &path);
    Response post(const QString &path, const QJsonObject &body = {});
    Response patch(const QString &path, const QJsonObject &body);
    Response postRaw(const QString &path, const QByteArray &body,
                     const QByteArray &type = "application/json");
    /// Uploads under the field name "file".
    Response upload(const QString &path,
                    const QList<std::tuple<QString, QString, QByteArray>> &files);

    /// Signs up with a fresh address and keeps the session; the result is the user.
    QJsonObject signUp(const QString &email);
    /// Takes the session of a reply.
    void keepSession(const Response &response);

    /// The path of the chat with the orchestrator, and of that with an agent; empty for none.
    QString kivChat();
    QString agentChat(const QString &name);

    /// The headers of every request; a test bends them.
    httplib::Headers headers;
    int port() const { return m_port; }

private:
    Response take(const httplib::Result &result);

    int m_port;
    httplib::Client m_client;
};

} // namespace kiv::test
