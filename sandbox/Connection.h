#pragma once

#include <httplib.h>

#include <array>
#include <chrono>

namespace kiv::sandbox {

/// One accepted socket, as the HTTP library reads and writes it. Belongs to the thread that serves
/// it. The library's own stream cannot be interrupted, slowed or cut, so this one stands in.
class Connection : public httplib::Stream {
public:
    using Milliseconds = std::chrono::milliseconds;

    explicit Connection(socket_t socket);
    ~Connection() override;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// The connection that the calling thread serves, or null.
    static Connection *current();

    int peerPort() const;
    int ownPort() const;
    /// Waits for the first byte of the next request; false when the peer left or stayed silent.
    bool waitForRequest(Milliseconds patience);
    /// A request begins. Its head may take so much room and time, and no more.
    void beginHead();
    /// The head has been read. Its body may take as long as the largest takes.
    void beginBody();
    /// Nothing is read of this connection after the reply under way.
    void endAfterReply() { m_ending = true; }
    bool isEnding() const { return m_ending; }
    /// Takes what the peer still sends for a moment, so that it comes to read the reply.
    void drain();
    /// Whether the peer has closed its end.
    bool peerGone() const;
    /// The reply to the request under way goes out in small pieces with this pause between them.
    void slowDown(Milliseconds pause) { m_pause = pause; }
    /// Closes the socket both ways: what is written afterwards goes nowhere.
    void abort();

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *data, size_t size) override;
    ssize_t write(const char *data, size_t size) override;
    void get_remote_ip_and_port(std::string &address, int &port) const override;
    void get_local_ip_and_port(std::string &address, int &port) const override;
    socket_t socket() const override { return m_socket; }

private:
    bool waitFor(short events, Milliseconds patience) const;
    Milliseconds timeLeft() const;
    bool sendAll(const char *data, size_t size);

    socket_t m_socket;
    bool m_ending = false;
    size_t m_mayRead = 0; ///< bytes of the request that may still be read
    std::chrono::steady_clock::time_point m_deadline;
    Milliseconds m_pause{0};
    std::array<char, 8192> m_buffer;
    size_t m_begin = 0;
    size_t m_end = 0;
};

} // namespace kiv::sandbox
