#include "soak/JumpingClock.h"

#include <algorithm>

namespace kiv::soak {

using namespace std::chrono_literals;

void JumpingClock::sleep(Milliseconds time) {
    m_ahead += time;
    for (auto &[id, waiting] : m_waiting)
        arm(id, waiting);
}

quint64 JumpingClock::schedule(Milliseconds delay, Callback callback) {
    const quint64 id = ++m_lastId;
    Waiting &waiting = m_waiting[id];
    waiting.due = elapsed() + delay;
    waiting.callback = std::move(callback);
    arm(id, waiting);
    return id;
}

void JumpingClock::arm(quint64 id, Waiting &waiting) {
    const Milliseconds left = std::max(waiting.due - elapsed(), 0ms);
    waiting.timer = m_real.after(left, [this, id] {
        auto due = m_waiting.extract(id);
        if (due)
            due.mapped().callback();
    });
}

} // namespace kiv::soak
