#pragma once

#include "base/Work.h"
#include "net/APIClient.h"
#include "net/ChatRecords.h"

#include <functional>

namespace kiv::net {

/// The live stream of one chat. Reconnects by itself, more slowly each time, until it is stopped
/// or the backend says that nobody is signed in. Callbacks come on the main thread; they may stop,
/// restart or destroy the stream, and none comes after that.
class ChatStreamClient : public QObject {
    Q_OBJECT
public:
    using OnMessage = std::function<void(const ChatRow &)>;
    using OnReconnect = std::function<void()>;
    using OnOpen = std::function<void()>;

    /// Reads from the client's backend with its cookies, over connections of its own. The client
    /// outlives the stream.
    explicit ChatStreamClient(APIClient &client, QObject *parent = nullptr);

    /// Replaces the running stream. `onReconnect` is called before every attempt but the first,
    /// `onOpen` when one has succeeded: from then on no row is missed.
    void start(QString path, OnMessage onMessage, OnReconnect onReconnect, OnOpen onOpen);
    void stop() { m_loop.cancel(); }
    bool running() const { return m_loop.running(); }

private:
    APIClient &m_client;
    HttpSession m_session;
    Work m_loop;
};

} // namespace kiv::net
