#include "store/Calendar.h"

namespace kiv::store {

namespace {

/// A machine that sleeps, a clock that is set and a journey to another time zone move midnight.
constexpr Clock::Milliseconds longestWait = std::chrono::hours(1);

} // namespace

Calendar::Calendar(Clock &clock) : m_clock(clock) {
    look();
}

void Calendar::look() {
    const QDateTime now = m_clock.now().toLocalTime();
    const Clock::Milliseconds untilMidnight(
        now.msecsTo(now.date().addDays(1).startOfDay(Qt::LocalTime)));
    m_next = m_clock.after(std::min(untilMidnight, longestWait), [this] { look(); });
    if (std::exchange(m_today, now.date()) != now.date())
        Q_EMIT todayChanged();
}

} // namespace kiv::store
