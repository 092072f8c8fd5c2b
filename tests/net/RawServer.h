#pragma once

#include <QMap>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>

namespace kiv::test {

/// The server's end of one connection: sends exactly what the test says, when it says so.
class Peer : public QObject {
    Q_OBJECT
public:
    explicit Peer(QTcpSocket *socket, QObject *parent);

    void send(QByteArray bytes) { m_socket->write(bytes); }
    /// A whole answer on a connection that stays open.
    void reply(int status, QByteArray body = {}, QByteArrayList headers = {});
    /// The head of an answer whose body has `length` bytes, or (-1) ends with the connection.
    void replyHead(int status, qsizetype length = -1, QByteArrayList headers = {});
    /// Sends at once what was said, without the event loop.
    void flush() { m_socket->flush(); }
    void close() { m_socket->disconnectFromHost(); }
    /// Whether either side has ended the connection.
    bool isClosed() const { return m_socket->state() == QAbstractSocket::UnconnectedState; }
    /// Leaves what the client sends in the network while on.
    void stopReading();
    void goOnReading();
    qsizetype received() const { return m_input.size(); }

    struct Request {
        QByteArray method;
        QByteArray target;
        QMap<QByteArray, QByteArray> headers; ///< names in lower case
        QByteArray body;
        QPointer<Peer> peer;
    };

Q_SIGNALS:
    void requested(const kiv::test::Peer::Request &request);

private:
    void read();
    bool takeRequest();

    QTcpSocket *m_socket;
    QByteArray m_input;
    bool m_reading = true;
};

/// An HTTP server in the test's own process, on a free port of this computer.
class RawServer : public QObject {
    Q_OBJECT
public:
    using Handler = std::function<void(const Peer::Request &)>;

    RawServer();

    QUrl url(const QString &host = QStringLiteral("127.0.0.1")) const;
    /// Answers every request from now on; without it requests wait for the test.
    void answer(Handler handler) { m_handler = std::move(handler); }
    void answer(int status, QByteArray body = {}, QByteArrayList headers = {});
    /// What new connections do with the bytes that come.
    void stopReading() { m_reading = false; }
    void close() { m_server.close(); }

    const QList<Peer::Request> &requests() const { return m_requests; }
    qsizetype count() const { return m_requests.size(); }
    const Peer::Request &last() const { return m_requests.last(); }
    const QList<Peer *> &peers() const { return m_peers; }

private:
    QTcpServer m_server;
    QList<Peer *> m_peers;
    QList<Peer::Request> m_requests;
    Handler m_handler;
    bool m_reading = true;
};

} // namespace kiv::test
