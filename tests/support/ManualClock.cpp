#include "support/ManualClock.h"

#include <algorithm>

namespace kiv::test {

std::map<quint64, ManualClock::Due>::iterator ManualClock::earliest() {
    return std::min_element(m_due.begin(), m_due.end(),
                            [](const auto &a, const auto &b) { return a.second.at < b.second.at; });
}

void ManualClock::advance(Milliseconds by) {
    const Milliseconds until = m_elapsed + by;
    for (auto next = earliest(); next != m_due.end() && next->second.at <= until;
         next = earliest()) {
        m_elapsed = std::max(m_elapsed, next->second.at);
        const Callback callback = std::move(next->second.callback);
        m_due.erase(next);
        callback();
    }
    m_elapsed = until;
}

std::optional<Clock::Milliseconds> ManualClock::nextDue() const {
    const auto next = const_cast<ManualClock *>(this)->earliest();
    if (next == m_due.end())
        return std::nullopt;
    return next->second.at - m_elapsed;
}

quint64 ManualClock::schedule(Milliseconds delay, Callback callback) {
    m_due.emplace(m_nextId, Due{m_elapsed + delay, std::move(callback)});
    return m_nextId++;
}

void ManualClock::unschedule(quint64 id) {
    m_due.erase(id);
}

} // namespace kiv::test
