#include "ScriptedBackend.h"

#include <QJsonDocument>

namespace kiv::test {

using namespace Qt::StringLiterals;

namespace {

constexpr auto streamEnd = "/chat/stream"_L1;

QString routeOf(const ScriptedBackend::Request &request) {
    return request.method + u' ' + request.path;
}

} // namespace

ScriptedBackend::ScriptedBackend() {
    m_server.listen(QHostAddress::LocalHost);
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_received.remove(socket);
                socket->deleteLater();
            });
        }
    });
}

QUrl ScriptedBackend::url() const {
    return QUrl(u"http://127.0.0.1:%1"_s.arg(m_server.serverPort()));
}

void ScriptedBackend::answer(const QString &route, const QByteArray &json, int status) {
    m_answers[route] = {status, json};
}

void ScriptedBackend::answerPage(const QString &route, const QByteArray &html, int status,
                                 const QByteArray &headers) {
    m_answers[route] = {status, html, "Content-Type: text/html; charset=utf-8\r\n" + headers};
}

void ScriptedBackend::hold(const QString &route) {
    m_answers[route].held = true;
}

void ScriptedBackend::release(const QString &route) {
    Answer &answer = m_answers[route];
    answer.held = false;
    const bool isStream = route.endsWith(streamEnd);
    for (const auto &socket : m_held.take(route)) {
        if (socket && isStream)
            openStream(socket, route.section(u' ', 1));
        else if (socket)
            reply(socket, answer);
    }
    if (isStream)
        m_answers.remove(route);
}

void ScriptedBackend::breakOff(const QString &route) {
    m_answers[route].broken = true;
}

QList<ScriptedBackend::Request> ScriptedBackend::requests(const QString &route) const {
    QList<Request> found;
    for (const Request &request : m_requests) {
        if (routeOf(request) == route)
            found.append(request);
    }
    return found;
}

QHash<QString, int> ScriptedBackend::counts() const {
    QHash<QString, int> counts;
    for (const Request &request : m_requests)
        ++counts[routeOf(request)];
    return counts;
}

bool ScriptedBackend::isStreaming(const QString &path) const {
    const auto stream = m_streams.value(path);
    return stream && stream->state() == QAbstractSocket::ConnectedState;
}

void ScriptedBackend::sendRow(const QString &path, const QByteArray &row) {
    if (const auto stream = m_streams.value(path)) {
        stream->write("event: message-insert\ndata: " + row + "\n\n");
        stream->flush();
    }
}

void ScriptedBackend::dropStream(const QString &path) {
    if (const auto stream = m_streams.take(path))
        stream->disconnectFromHost();
}

void ScriptedBackend::read(QTcpSocket *socket) {
    QByteArray &received = m_received[socket];
    received += socket->readAll();
    const qsizetype head = received.indexOf("\r\n\r\n");
    if (head < 0)
        return;
    const QList<QByteArray> lines = received.first(head).split('\n');
    qsizetype length = 0;
    QByteArray cookies;
    for (const QByteArray &line : lines) {
        if (line.toLower().startsWith("content-length:"))
            length = line.mid(15).trimmed().toLongLong();
        if (line.toLower().startsWith("cookie:"))
            cookies = line.mid(7).trimmed();
    }
    if (received.size() < head + 4 + length)
        return;
    const QList<QByteArray> words = lines.first().split(' ');
    const QUrl target = QUrl::fromEncoded(words.value(1));
    Request request{QString::fromLatin1(words.value(0)),
                    target.path().mid(1),
                    target.query(),
                    QJsonDocument::fromJson(received.sliced(head + 4, length)).object(),
                    received.sliced(head + 4, length),
                    cookies};
    received.remove(0, head + 4 + length);
    m_requests.append(request);
    serve(socket, request);
}

void ScriptedBackend::serve(QTcpSocket *socket, const Request &request) {
    const QString route = routeOf(request);
    const Answer answer = m_answers.value(route);
    if (answer.broken) {
        socket->abort();
    } else if (answer.held) {
        m_held[route].append(socket);
    } else if (request.path.endsWith(streamEnd) && !m_answers.contains(route)) {
        openStream(socket, request.path);
    } else {
        reply(socket, answer);
    }
}

void ScriptedBackend::openStream(QTcpSocket *socket, const QString &path) {
    m_streams[path] = socket;
    socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/event-stream\r\n\r\n"
                  "event: ready\ndata: {}\n\n");
    socket->flush();
}

void ScriptedBackend::reply(QTcpSocket *socket, const Answer &answer) {
    socket->write("HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\n" +
                  answer.headers + "Content-Length: " + QByteArray::number(answer.body.size()) +
                  "\r\n\r\n" + answer.body);
    socket->flush();
}

} // namespace kiv::test
