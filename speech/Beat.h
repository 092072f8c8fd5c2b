#pragma once

#include <chrono>

namespace kiv::speech {

/// When a growing utterance is read again: every 200 ms, and less often where a reading takes long,
/// so that two fifths of the time at most are spent on it, two thirds while somebody waits to see
/// the first words.
class Beat {
public:
    using Milliseconds = std::chrono::milliseconds;

    bool due(Milliseconds now) const { return now >= m_next; }
    void read(Milliseconds from, Milliseconds to, bool waitedFor) {
        m_next = from + std::max(shortest, (to - from) * (waitedFor ? 3 : 5) / 2);
    }
    void clear() { m_next = {}; }

private:
    static constexpr Milliseconds shortest{200};
    Milliseconds m_next{0};
};

} // namespace kiv::speech
