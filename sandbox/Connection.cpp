#include "Connection.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace kiv::sandbox {

namespace {

constexpr Connection::Milliseconds ioPatience{30'000};
constexpr size_t largestHead = 64 * 1024;
constexpr Connection::Milliseconds headPatience{10'000};
constexpr Connection::Milliseconds bodyPatience{60'000};
constexpr Connection::Milliseconds drainPatience{2'000};
/// Not a divisor of anything: slow bytes cut events and characters at ever new places.
constexpr size_t slowPiece = 7;

thread_local Connection *servedHere = nullptr;

/// Of the end that `ask` (getsockname or getpeername) names; 0 when it is gone.
template <typename Ask>
int portOf(socket_t socket, Ask ask) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    return ask(socket, reinterpret_cast<sockaddr *>(&address), &size) == 0 ? ntohs(address.sin_port)
                                                                           : 0;
}

} // namespace

Connection::Connection(socket_t socket) : m_socket(socket) {
    const int on = 1;
    ::setsockopt(m_socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    servedHere = this;
}

Connection::~Connection() {
    servedHere = nullptr;
    ::shutdown(m_socket, SHUT_RDWR);
    ::close(m_socket);
}

Connection *Connection::current() {
    return servedHere;
}

int Connection::peerPort() const {
    return portOf(m_socket, ::getpeername);
}

int Connection::ownPort() const {
    return portOf(m_socket, ::getsockname);
}

bool Connection::waitFor(short events, Milliseconds patience) const {
    pollfd watched{m_socket, events, 0};
    int ready = 0;
    do {
        ready = ::poll(&watched, 1, static_cast<int>(patience.count()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0 && (watched.revents & (events | POLLHUP)) != 0;
}

bool Connection::waitForRequest(Milliseconds patience) {
    return m_begin < m_end || (waitFor(POLLIN, patience) && !peerGone());
}

void Connection::beginHead() {
    m_pause = {};
    m_mayRead = largestHead;
    m_deadline = std::chrono::steady_clock::now() + headPatience;
}

void Connection::beginBody() {
    m_mayRead = std::numeric_limits<size_t>::max();
    m_deadline = std::chrono::steady_clock::now() + bodyPatience;
}

Connection::Milliseconds Connection::timeLeft() const {
    const auto left = m_deadline - std::chrono::steady_clock::now();
    return std::max(std::chrono::duration_cast<Milliseconds>(left), Milliseconds(0));
}

void Connection::drain() {
    ::shutdown(m_socket, SHUT_WR);
    m_deadline = std::chrono::steady_clock::now() + drainPatience;
    while (waitFor(POLLIN, timeLeft()) &&
           ::recv(m_socket, m_buffer.data(), m_buffer.size(), 0) > 0) {
    }
}

bool Connection::peerGone() const {
    char next = 0;
    const ssize_t size = ::recv(m_socket, &next, 1, MSG_PEEK | MSG_DONTWAIT);
    return size == 0 || (size < 0 && errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR);
}

void Connection::abort() {
    ::shutdown(m_socket, SHUT_RDWR);
}

bool Connection::is_readable() const {
    return m_begin < m_end || waitFor(POLLIN, ioPatience);
}

bool Connection::is_writable() const {
    return waitFor(POLLOUT, ioPatience) && !peerGone();
}

ssize_t Connection::read(char *data, size_t size) {
    const bool isOver = m_mayRead == 0 || timeLeft() == Milliseconds(0);
    if (isOver || (m_begin == m_end && !waitFor(POLLIN, std::min(timeLeft(), ioPatience)))) {
        m_ending = true; // what follows is not the beginning of anything
        return -1;
    }
    if (m_begin == m_end) {
        const ssize_t got = ::recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
        if (got <= 0)
            return got;
        m_begin = 0;
        m_end = static_cast<size_t>(got);
    }
    const size_t taken = std::min({size, m_end - m_begin, m_mayRead});
    std::memcpy(data, m_buffer.data() + m_begin, taken);
    m_begin += taken;
    m_mayRead -= taken;
    return static_cast<ssize_t>(taken);
}

ssize_t Connection::write(const char *data, size_t size) {
    const size_t piece = m_pause.count() > 0 ? slowPiece : size;
    for (size_t sent = 0; sent < size; sent += piece) {
        if (!sendAll(data + sent, std::min(piece, size - sent)))
            return -1;
        // Pausing ends early when either side closes, so that slowness never holds up the end.
        if (m_pause.count() > 0 && waitFor(POLLRDHUP, m_pause))
            return -1;
    }
    return static_cast<ssize_t>(size);
}

bool Connection::sendAll(const char *data, size_t size) {
    while (size > 0) {
        if (!waitFor(POLLOUT, ioPatience))
            return false;
        const ssize_t sent = ::send(m_socket, data, size, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            return false;
        data += sent;
        size -= static_cast<size_t>(sent);
    }
    return true;
}

void Connection::get_remote_ip_and_port(std::string &address, int &port) const {
    address = "127.0.0.1"; // nobody else can connect
    port = 0;
}

void Connection::get_local_ip_and_port(std::string &address, int &port) const {
    address = "127.0.0.1";
    port = 0;
}

} // namespace kiv::sandbox
