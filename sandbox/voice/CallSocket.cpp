#include "voice/CallSocket.h"

#include "Http.h"

#include <QDeadlineTimer>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr quint64 largestMessage = 256 * 1024;
constexpr int mostMessagesInSecond = 400;
/// A caller who reads nothing is let go before the pile of what it should read grows further.
constexpr qint64 mostUnread = 4 * 1024 * 1024;

} // namespace

CallSocket::CallSocket(std::unique_ptr<QWebSocket> socket, std::optional<Fault> fault)
    : m_socket(std::move(socket)), m_fault(std::move(fault)) {
    m_socket->setMaxAllowedIncomingMessageSize(largestMessage);
    m_socket->setMaxAllowedIncomingFrameSize(largestMessage);
    connect(m_socket.get(), &QWebSocket::textMessageReceived, this, &CallSocket::receive);
    connect(m_socket.get(), &QWebSocket::binaryMessageReceived, this, [this] {
        close(QWebSocketProtocol::CloseCodeDatatypeNotSupported, u"Only text is understood."_s);
    });
    connect(m_socket.get(), &QWebSocket::pong, this, [this](quint64, const QByteArray &stamp) {
        const qint64 sent = stamp.toLongLong();
        const qint64 now = QDeadlineTimer::current().deadlineNSecs();
        m_handlers.latency(static_cast<double>(now - sent) / 1e6);
    });
    // The code alone does not tell: a connection that broke has that of a normal end. But only an
    // end that somebody meant is announced, and so is breakOff().
    connect(m_socket.get(), &QWebSocket::aboutToClose, this, [this] {
        m_goodbye = !m_breaking &&
                    (m_closing || m_socket->closeCode() == QWebSocketProtocol::CloseCodeNormal);
    });
    connect(m_socket.get(), &QWebSocket::disconnected, this,
            [this] { m_handlers.closed(m_goodbye); });
}

CallSocket::~CallSocket() {
    m_socket->disconnect(this);
}

void CallSocket::send(const QJsonObject &message) {
    QByteArray text = compact(message);
    if (m_fault && m_sent >= m_fault->value) {
        switch (m_fault->kind) {
        case Fault::StreamStall:
            return;
        case Fault::StreamDrop:
            breakOff();
            return;
        case Fault::BadJson:
            text.chop(text.size() / 2 + 1);
            break;
        default:
            break;
        }
    }
    ++m_sent;
    m_socket->sendTextMessage(QString::fromUtf8(text));
    if (m_socket->bytesToWrite() > mostUnread)
        breakOff();
}

void CallSocket::measure() {
    m_socket->ping(QByteArray::number(QDeadlineTimer::current().deadlineNSecs()));
}

void CallSocket::close(QWebSocketProtocol::CloseCode code, const QString &reason) {
    m_closing = true;
    m_socket->close(code, reason);
}

void CallSocket::breakOff() {
    m_breaking = true;
    // What follows here may be in the middle of using the socket.
    QMetaObject::invokeMethod(m_socket.get(), &QWebSocket::abort, Qt::QueuedConnection);
}

void CallSocket::receive(const QString &text) {
    if (m_closing)
        return;
    if (isFlooding()) {
        close(QWebSocketProtocol::CloseCodePolicyViolated, u"Too many messages."_s);
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (!document.isObject()) {
        close(QWebSocketProtocol::CloseCodeWrongDatatype, u"A message has to be a JSON object."_s);
        return;
    }
    m_handlers.message(document.object());
}

bool CallSocket::isFlooding() {
    const qint64 second = QDeadlineTimer::current().deadlineNSecs() / 1'000'000'000;
    m_inSecond = second == m_second ? m_inSecond + 1 : 1;
    m_second = second;
    return m_inSecond > mostMessagesInSecond;
}

} // namespace kiv::sandbox
