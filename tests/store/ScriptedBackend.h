#pragma once

#include <QHash>
#include <QJsonObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace kiv::test {

/// A backend on a real socket that answers as the test tells it, and keeps what was asked.
class ScriptedBackend : public QObject {
    Q_OBJECT
public:
    struct Request {
        QString method;
        QString path; ///< without the query
        QString query;
        QJsonObject body; ///< empty unless it is JSON
        QByteArray raw;
        QByteArray cookies;
    };

    ScriptedBackend();
    QUrl url() const;

    /// What `method path` answers from now on; JSON text.
    void answer(const QString &route, const QByteArray &json, int status = 200);
    /// The same for a page; `headers` are whole lines, each with its end.
    void answerPage(const QString &route, const QByteArray &html, int status = 200,
                    const QByteArray &headers = {});
    /// Requests of the route wait until release(). A stream opens then, whatever was answered
    /// before.
    void hold(const QString &route);
    void release(const QString &route);
    /// The connection is closed without an answer.
    void breakOff(const QString &route);

    QList<Request> requests(const QString &route) const;
    int count(const QString &route) const { return static_cast<int>(requests(route).size()); }
    /// How often each route was asked for.
    QHash<QString, int> counts() const;

    /// Streams are opened by GET …/chat/stream and stay open.
    bool isStreaming(const QString &path) const;
    void sendRow(const QString &path, const QByteArray &row);
    void dropStream(const QString &path);

private:
    struct Answer {
        int status = 404;
        QByteArray body = R"({"error":"no such route"})";
        QByteArray headers = "Content-Type: application/json\r\n";
        bool held = false;
        bool broken = false;
    };
    void read(QTcpSocket *socket);
    void serve(QTcpSocket *socket, const Request &request);
    void openStream(QTcpSocket *socket, const QString &path);
    static void reply(QTcpSocket *socket, const Answer &answer);

    QHash<QString, Answer> m_answers;
    QHash<QTcpSocket *, QByteArray> m_received;
    QHash<QString, QList<QPointer<QTcpSocket>>> m_held;
    QHash<QString, QPointer<QTcpSocket>> m_streams;
    QList<Request> m_requests;
    QTcpServer m_server; ///< last: its sockets say goodbye to what stands above
};

} // namespace kiv::test
