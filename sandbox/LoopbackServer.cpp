#include "LoopbackServer.h"

#include "Connection.h"
#include "ConnectionThreads.h"
#include "PeerUser.h"

#include <sys/socket.h>

using namespace std::chrono_literals;

namespace kiv::sandbox {

namespace {

constexpr Connection::Milliseconds keepAlivePatience{15'000};
constexpr Connection::Milliseconds idleRound{500};
constexpr size_t requestsPerConnection = 200;
constexpr size_t mostConnections = 256;
constexpr int backlog = 128;

} // namespace

LoopbackServer::LoopbackServer() {
    set_keep_alive_timeout(keepAlivePatience / std::chrono::seconds(1));
    set_keep_alive_max_count(requestsPerConnection);
    // A port that was just left can be had again. The library would share one with other servers.
    set_socket_options([](socket_t socket) {
        const int on = 1;
        ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    });
    new_task_queue = [this] { return m_threads = new ConnectionThreads(mostConnections); };
}

int LoopbackServer::bindLoopback(int port) {
    const char *const loopback = "127.0.0.1";
    if (port == 0)
        port = bind_to_any_port(loopback);
    else if (!bind_to_port(loopback, port))
        port = -1;
    if (port > 0) {
        ::listen(svr_sock_, backlog); // the library's own five drop a client that starts up
    }
    return port;
}

void LoopbackServer::stopNow() {
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        for (socket_t socket : m_open)
            ::shutdown(socket, SHUT_RDWR);
    }
    // The library's own stop does nothing before its thread has come to listen.
    ::shutdown(svr_sock_, SHUT_RDWR);
    stop();
}

bool LoopbackServer::process_and_close_socket(socket_t socket) {
    Connection connection(socket);
    if (mayBeOfAnotherUser(connection.peerPort(), connection.ownPort()) || !enlist(socket))
        return false;
    bool served = true;
    bool closed = false;
    for (size_t left = requestsPerConnection; left > 0 && served && !closed; --left) {
        if (!waitForRequest(connection))
            break;
        connection.beginHead();
        served = process_request(connection, left == 1, closed, nullptr);
        if (connection.isEnding()) {
            connection.drain();
            break;
        }
    }
    delist(socket);
    return served;
}

/// A connection on which nothing is asked gives way as soon as others wait for its place.
bool LoopbackServer::waitForRequest(Connection &connection) {
    for (auto waited = 0ms; waited < keepAlivePatience; waited += idleRound) {
        if (connection.waitForRequest(idleRound))
            return true;
        if (connection.peerGone() || m_threads->isCrowded())
            return false;
    }
    return false;
}

bool LoopbackServer::enlist(socket_t socket) {
    const std::lock_guard lock(m_mutex);
    if (m_stopping)
        return false;
    m_open.insert(socket);
    return true;
}

void LoopbackServer::delist(socket_t socket) {
    const std::lock_guard lock(m_mutex);
    m_open.erase(socket);
}

} // namespace kiv::sandbox
