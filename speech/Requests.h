#pragma once

#include <QByteArray>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <variant>
#include <vector>

namespace kiv::speech {

struct Sound {
    std::vector<float> samples;
};
/// The request is over: what was said in it is to be finished.
struct End {};
/// What was heard is to be forgotten.
struct Drop {};
/// Nothing comes any more.
struct Close {};
using Request = std::variant<Sound, End, Drop, Close>;

/// A line that is none of the protocol.
class ProtocolError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The request in a line; nothing in one that asks for nothing known. Throws ProtocolError.
std::optional<Request> parseRequest(const QByteArray &line);

/// What has been read and not been worked on, between the thread that reads and the one that
/// listens.
class RequestQueue {
public:
    /// Waits while a minute of sound lies here already. A Drop takes the sound before it away, and
    /// a Close what no End asks to be finished.
    void put(Request request);
    /// Waits for a request.
    Request take();
    bool empty() const;
    /// Whether what was heard is of no use any more.
    bool dropping() const;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Request> m_requests;
    size_t m_samples = 0;
    bool m_dropping = false;
    bool m_ending = false; ///< an End is being worked on
};

} // namespace kiv::speech
