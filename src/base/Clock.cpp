#include "base/Clock.h"

#include "base/Await.h"

#include <utility>

namespace kiv {

namespace {

class Sleep {
public:
    Sleep(Clock &clock, Clock::Milliseconds delay, Cancel cancel)
        : m_clock(clock), m_delay(delay), m_cancel(std::move(cancel)) {}

    bool ready() const { return m_cancel.requested(); }
    void suspend(std::coroutine_handle<> waiting) {
        m_timer = m_clock.after(m_delay, [this, waiting] {
            m_link.unlink();
            waiting.resume();
        });
        m_cancel.link(m_link, [this, waiting] {
            m_timer.stop();
            waiting.resume();
        });
    }
    void result() const { m_cancel.throwIfRequested(); }

private:
    Clock &m_clock;
    Clock::Milliseconds m_delay;
    Cancel m_cancel;
    Clock::Timer m_timer;
    Cancel::Link m_link;
};

} // namespace

Clock::Timer::Timer(Clock &clock, Milliseconds delay, Callback callback)
    : m_clock(&clock), m_id(clock.schedule(delay, std::move(callback))) {}

Clock::Timer &Clock::Timer::operator=(Timer &&other) noexcept {
    Timer taken(std::move(other));
    swap(taken);
    return *this;
}

void Clock::Timer::stop() {
    if (Clock *clock = std::exchange(m_clock, nullptr))
        clock->unschedule(m_id);
}

void Clock::Timer::swap(Timer &other) noexcept {
    std::swap(m_clock, other.m_clock);
    std::swap(m_id, other.m_id);
}

QCoro::Task<void> Clock::sleep(Milliseconds delay, Cancel cancel) {
    Sleep sleeping(*this, delay, std::move(cancel));
    co_await waitFor(sleeping);
}

} // namespace kiv
