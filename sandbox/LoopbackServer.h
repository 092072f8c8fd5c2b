#pragma once

#include <httplib.h>

#include <mutex>
#include <unordered_set>

namespace kiv::sandbox {

/// The HTTP server with connections that can be let go at once, so that shutting down never waits
/// for an idle or streaming peer.
class LoopbackServer : public httplib::Server {
public:
    LoopbackServer();

    /// Stops accepting and closes every connection; `listen_after_bind` then returns.
    void stopNow();

private:
    bool process_and_close_socket(socket_t socket) override;
    bool enlist(socket_t socket);
    void delist(socket_t socket);

    std::mutex m_mutex;
    std::unordered_set<socket_t> m_open;
    bool m_stopping = false;
};

} // namespace kiv::sandbox
