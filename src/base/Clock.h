#pragma once

#include "base/Cancel.h"

#include <QCoroTask>
#include <QDateTime>

#include <chrono>
#include <functional>

namespace kiv {

/// The program's only source of time: every delay, watchdog, debounce and time of day asks it.
/// The program runs on a SystemClock, tests on one that they advance by hand.
class Clock {
public:
    using Milliseconds = std::chrono::milliseconds;
    using Callback = std::function<void()>;

    /// A callback that is due once. Destroying or stopping it drops the callback.
    /// The clock outlives its timers.
    class Timer {
    public:
        Timer() = default;
        Timer(Clock &clock, Milliseconds delay, Callback callback);
        Timer(Timer &&other) noexcept { swap(other); }
        Timer &operator=(Timer &&other) noexcept;
        ~Timer() { stop(); }
        void stop();

    private:
        void swap(Timer &other) noexcept;

        Clock *m_clock = nullptr;
        quint64 m_id = 0;
    };

    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    /// The time of day, in UTC.
    virtual QDateTime now() const = 0;
    /// Milliseconds on a scale that never jumps, for measuring durations.
    virtual Milliseconds elapsed() const = 0;

    /// Calls back once after `delay`, from the event loop, never inside this call.
    [[nodiscard]] Timer after(Milliseconds delay, Callback callback) {
        return Timer(*this, delay, std::move(callback));
    }
    /// Waits for `delay`; throws Cancelled when it is woken before.
    QCoro::Task<void> sleep(Milliseconds delay, Cancel cancel);

protected:
    virtual quint64 schedule(Milliseconds delay, Callback callback) = 0;
    virtual void unschedule(quint64 id) = 0;
};

} // namespace kiv
