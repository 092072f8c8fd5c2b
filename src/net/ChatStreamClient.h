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
    struct Callbacks {
        std::function<void(const ChatRow &)> onMessage;
        /// Before every attempt but the first.
        std::function<void()> onReconnect = [] {};
        /// An attempt has succeeded: rows come from now on.
        std::function<void()> onOpen = [] {};
        /// The backend has answered 401, as when nobody is signed in; the stream has ended.
        std::function<void()> onRefused = [] {};
    };

    /// Reads from the client's backend with its cookies, over connections of its own. The client
    /// outlives the stream.
    explicit ChatStreamClient(APIClient &client, QObject *parent = nullptr);

    /// Replaces the running stream.
    void start(QString path, Callbacks callbacks);
    void stop() { m_loop.cancel(); }
    bool running() const { return m_loop.running(); }

private:
    APIClient &m_client;
    HttpSession m_session;
    Work m_loop;
};

} // namespace kiv::net
