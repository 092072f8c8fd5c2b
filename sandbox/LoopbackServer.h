#pragma once

#include <httplib.h>

#include <mutex>
#include <unordered_set>

namespace kiv::sandbox {

class Connection;
class ConnectionThreads;

/// The HTTP server for the programs of one user, with connections that can be let go at once, so
/// that shutting down never waits for an idle or streaming peer.
class LoopbackServer : public httplib::Server {
public:
    LoopbackServer();

    /// Takes a port of 127.0.0.1, a free one for 0. Returns it, or -1 when it cannot be had.
    int bindLoopback(int port);
    /// Stops accepting and closes every connection; `listen_after_bind` then returns.
    void stopNow();

private:
    bool process_and_close_socket(socket_t socket) override;
    bool waitForRequest(Connection &connection);
    bool enlist(socket_t socket);
    void delist(socket_t socket);

    std::mutex m_mutex;
    std::unordered_set<socket_t> m_open;
    bool m_stopping = false;
    ConnectionThreads *m_threads = nullptr; ///< the library's, while it listens
};

} // namespace kiv::sandbox
