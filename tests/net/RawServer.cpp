#include "RawServer.h"

namespace kiv::test {

Peer::Peer(QTcpSocket *socket, QObject *parent) : QObject(parent), m_socket(socket) {
    m_socket->setParent(this);
    connect(m_socket, &QTcpSocket::readyRead, this, &Peer::read);
}

void Peer::reply(int status, QByteArray body, QByteArrayList headers) {
    replyHead(status, body.size(), headers);
    send(body);
}

void Peer::replyHead(int status, qsizetype length, QByteArrayList headers) {
    if (length >= 0)
        headers.append("Content-Length: " + QByteArray::number(length));
    QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + " Status\r\n";
    for (const QByteArray &header : headers)
        head += header + "\r\n";
    send(head + "\r\n");
}

void Peer::stopReading() {
    m_reading = false;
    m_socket->setReadBufferSize(1024);
}

void Peer::goOnReading() {
    m_reading = true;
    m_socket->setReadBufferSize(0);
    read();
}

void Peer::read() {
    if (!m_reading)
        return;
    m_input += m_socket->readAll();
    while (takeRequest()) {
    }
}

bool Peer::takeRequest() {
    const qsizetype headEnd = m_input.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QList<QByteArray> lines = m_input.first(headEnd).replace("\r\n", "\n").split('\n');
    Request request;
    const QList<QByteArray> words = lines.first().split(' ');
    request.method = words.value(0);
    request.target = words.value(1);
    for (const QByteArray &line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    const qsizetype length = request.headers.value("content-length").toLongLong();
    if (m_input.size() < headEnd + 4 + length)
        return false;
    request.body = m_input.sliced(headEnd + 4, length);
    m_input.remove(0, headEnd + 4 + length);
    request.peer = this;
    Q_EMIT requested(request);
    return true;
}

RawServer::RawServer() {
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *socket = m_server.nextPendingConnection()) {
            auto *peer = new Peer(socket, this);
            m_peers.append(peer);
            if (!m_reading)
                peer->stopReading();
            connect(peer, &Peer::requested, this, [this](const Peer::Request &request) {
                m_requests.append(request);
                if (m_handler)
                    m_handler(request);
            });
        }
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("no port is free for the test server");
}

QUrl RawServer::url(const QString &host) const {
    QUrl url;
    url.setScheme(QStringLiteral("http"));
    url.setHost(host);
    url.setPort(m_server.serverPort());
    return url;
}

void RawServer::answer(int status, QByteArray body, QByteArrayList headers) {
    m_handler = [=](const Peer::Request &request) { request.peer->reply(status, body, headers); };
}

} // namespace kiv::test
