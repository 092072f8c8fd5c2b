#include "voice/VoiceServer.h"

#include "PeerUser.h"
#include "Services.h"
#include "voice/Speaker.h"
#include "voice/VoiceCall.h"

#include <QFileInfo>
#include <QTimer>
#include <QUrlQuery>
#include <QWebSocket>
#include <QWebSocketCorsAuthenticator>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

const QString protocol = u"convai"_s;
const QString method = u"GET"_s;
const QString socketPath = u"/voice/socket"_s;
constexpr auto handshakePatience = 10s;
constexpr auto untilAnswered = 200ms;
constexpr qsizetype mostConnections = 64;

QString recogniserIn(const Options &options) {
    const QFileInfo program(QCoreApplication::applicationDirPath() + u"/kiv-speech"_s);
    return program.isExecutable() && QFileInfo::exists(options.shareDir + u"/speech"_s)
               ? program.filePath()
               : QString();
}

} // namespace

VoiceServer::VoiceServer(Services &services, int httpPort)
    : m_services(services),
      m_origins{u"http://127.0.0.1:%1"_s.arg(httpPort), u"http://localhost:%1"_s.arg(httpPort)},
      m_voice(Speaker::program()),
      m_server(u"kiv-sandbox"_s, QWebSocketServer::NonSecureMode) {
    m_server.setSupportedSubprotocols({protocol});
    connect(&m_listener, &QTcpServer::newConnection, this, &VoiceServer::accept);
    connect(&m_server, &QWebSocketServer::newConnection, this, &VoiceServer::takeSocket);
    connect(&m_server, &QWebSocketServer::originAuthenticationRequired, this,
            [this](QWebSocketCorsAuthenticator *page) {
                page->setAllowed(m_origins.contains(page->origin()));
            });
    if (m_listener.listen(QHostAddress::LocalHost))
        m_port = m_listener.serverPort();
}

VoiceServer::~VoiceServer() {
    for (const auto &[key, call] : m_calls)
        m_services.calls.finish(call->id());
}

bool VoiceServer::isAvailable() const {
    return m_port > 0 && !m_voice.isEmpty() && QFileInfo::exists(clientScript());
}

QString VoiceServer::clientScript() const {
    return m_services.options.shareDir + u"/vendor/elevenlabs-client.1.21.0.js"_s;
}

CallDoor VoiceServer::door(const QString &origin) const {
    return {origin, u"%1:%2"_s.arg(QUrl(origin).host()).arg(m_port)};
}

QString VoiceServer::address(const CallDoor &door, const QByteArray &token,
                             const QString &agent) const {
    return u"ws://%1%2?agent_id=%3&token=%4"_s.arg(door.host, socketPath, agent,
                                                   QString::fromLatin1(token));
}

void VoiceServer::hangUp(const QString &call) {
    QMetaObject::invokeMethod(
        this,
        [this, call] {
            for (const auto &[key, held] : m_calls) {
                if (held->id() == call)
                    held->close(QWebSocketProtocol::CloseCodeNormal, u"The call was ended."_s);
            }
        },
        Qt::QueuedConnection);
}

void VoiceServer::accept() {
    Faults &faults = m_services.faults;
    while (QTcpSocket *connection = m_listener.nextPendingConnection()) {
        const int peer = connection->peerPort();
        m_shaking.insert(peer, connection);
        connect(connection, &QTcpSocket::disconnected, this, [this, peer, connection] {
            if (m_shaking.remove(peer)) { // otherwise it belongs to a WebSocket
                connection->deleteLater();
            }
        });
        const auto late = faults.take(method, socketPath, {Fault::Latency});
        const std::chrono::milliseconds wait(late ? late->value : 0);
        QTimer::singleShot(handshakePatience + wait, connection, [this, peer] {
            if (m_shaking.contains(peer))
                m_shaking.value(peer)->abort();
        });
        if (m_shaking.size() + static_cast<qsizetype>(m_calls.size()) > mostConnections ||
            mayBeOfAnotherUser(peer, m_port) || faults.take(method, socketPath, {Fault::Close})) {
            connection->abort();
        } else if (const auto fault = faults.take(method, socketPath, {Fault::Status})) {
            connection->write("HTTP/1.1 " + QByteArray::number(fault->value) +
                              " Refused\r\nContent-Length: 0\r\n\r\n");
            connection->disconnectFromHost();
        } else {
            QTimer::singleShot(wait, connection,
                               [this, connection] { m_server.handleConnection(connection); });
        }
    }
}

void VoiceServer::takeSocket() {
    while (m_server.hasPendingConnections()) {
        std::unique_ptr<QWebSocket> socket(m_server.nextPendingConnection());
        m_shaking.remove(socket->peerPort());
        const QUrl url = socket->requestUrl();
        const CallDoor from{socket->origin(),
                            QString::fromLatin1(socket->request().rawHeader("Host"))};
        const QByteArray token = QUrlQuery(url).queryItemValue(u"token"_s).toLatin1();
        const auto call = url.path() == socketPath && socket->subprotocol() == protocol
                              ? m_services.calls.open(token, from)
                              : std::nullopt;
        if (call) {
            hold(*call, std::move(socket));
        } else {
            m_services.witness.count(u"refused"_s);
            QWebSocket *refused = socket.release();
            connect(refused, &QWebSocket::disconnected, refused, &QObject::deleteLater);
            refused->close(QWebSocketProtocol::CloseCodePolicyViolated,
                           u"This call's address is not valid any more."_s);
        }
    }
}

/// Not before an answer to what was typed there is whole. Called from an event loop, out of which
/// nothing may be thrown.
void VoiceServer::post(const ChatKey &key, const Answer &answer) {
    if (m_services.answerer.isAnswering(key)) {
        QTimer::singleShot(untilAnswered, this, [this, key, answer] { post(key, answer); });
        return;
    }
    try {
        const ChatMessage row =
            m_services.chats.append(key, u"assistant"_s, answer.content, answer.metadata);
        m_services.hub.publish(key, rowEvent(row.rowObject({})));
    } catch (const std::exception &error) {
        qWarning("What a call has laid out cannot be stored: %s", error.what());
    }
}

void VoiceServer::hold(const OpenCall &call, std::unique_ptr<QWebSocket> socket) {
    Faults &faults = m_services.faults;
    auto wire = std::make_unique<CallSocket>(
        std::move(socket),
        faults.take(method, socketPath, {Fault::StreamDrop, Fault::StreamStall, Fault::BadJson}));
    const auto drop = faults.take(method, socketPath, {Fault::CallDrop});
    const bool deaf = faults.take(method, socketPath, {Fault::CallDeaf}).has_value();
    const CallSetting setting{
        .database = m_services.database,
        .calls = m_services.calls,
        .witness = m_services.witness,
        .scope = scopeOf(call.account, m_services.workspace.agent(call.account, call.agent)),
        .recogniser = deaf ? QString() : recogniserIn(m_services.options),
        .models = m_services.options.shareDir + u"/speech"_s,
        .pace = m_services.options.answerPace,
        .breakAfterMs = drop ? std::optional(drop->value) : std::nullopt,
        .post = [this, key = ChatKey::ofAgent(call.account, call.agent)](const Answer &answer) {
            post(key, answer);
        }};
    auto held =
        std::make_unique<VoiceCall>(call, setting, std::move(wire), [this](VoiceCall *over) {
            // A call tells of its end from within itself.
            QMetaObject::invokeMethod(
                this, [this, over] { m_calls.erase(over); }, Qt::QueuedConnection);
        });
    VoiceCall *const key = held.get();
    m_calls.emplace(key, std::move(held));
}

} // namespace kiv::sandbox
