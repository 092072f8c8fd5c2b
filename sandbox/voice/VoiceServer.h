#pragma once

#include "voice/CallStore.h"

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebSocketServer>

#include <memory>
#include <unordered_map>

namespace kiv::sandbox {

struct Answer;
struct ChatKey;
struct Services;
class VoiceCall;

/// The voice service: the WebSockets of calls, on a port of their own on 127.0.0.1. Lives on a
/// thread with an event loop; what is marked so may be used on every thread.
class VoiceServer : public QObject {
public:
    /// Only pages of the server on `httpPort` may open sockets.
    VoiceServer(Services &services, int httpPort);
    ~VoiceServer() override;

    /// Whether calls can be held at all: there is a port, a voice and the client's script. Any
    /// thread.
    bool isAvailable() const;
    /// The file that the client's page loads. Any thread.
    QString clientScript() const;
    /// Where the socket of a call comes from when its page was reached under `origin`. Any thread.
    CallDoor door(const QString &origin) const;
    /// The address of a call's socket. Any thread.
    QString address(const CallDoor &door, const QByteArray &token, const QString &agent) const;
    /// Closes the socket of a call that was ended elsewhere. Any thread.
    void hangUp(const QString &call);

private:
    void accept();
    void takeSocket();
    void post(const ChatKey &key, const Answer &answer);
    void hold(const OpenCall &call, std::unique_ptr<QWebSocket> socket);

    Services &m_services;
    const QStringList m_origins;
    const QString m_voice; ///< the program that speaks
    int m_port = 0;
    QTcpServer m_listener;
    QWebSocketServer m_server;
    QHash<int, QTcpSocket *> m_shaking; ///< by peer port, until the handshake is done
    std::unordered_map<VoiceCall *, std::unique_ptr<VoiceCall>> m_calls;
};

} // namespace kiv::sandbox
