#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <stdexcept>

namespace kiv::voice {

/// The samples that travel through the program: signed 16 bit, mono, in the host's byte order.
constexpr int sampleRate = 16'000;

/// An input that cannot be opened, and why.
class AudioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A microphone, or what stands in for one. Calls back on the thread that started it, never within
/// a call and never after stop().
class AudioInput {
public:
    using Samples = std::function<void(const QByteArray &samples)>;
    using Lost = std::function<void(const QString &reason)>;

    virtual ~AudioInput() = default;

    /// Opens the input and hands over its sound as it comes. `lost` says that the input went away
    /// while it was open; it has stopped by then. Throws AudioError when it cannot be opened.
    virtual void start(Samples samples, Lost lost) = 0;
    /// Does nothing when the input is not open.
    virtual void stop() = 0;
    virtual bool running() const = 0;
    /// How loud it is just now, from 0 to 1; 0 when it is not open.
    virtual double level() const = 0;
};

} // namespace kiv::voice
