#pragma once

#include "base/SystemClock.h"

#include <map>

namespace kiv::soak {

/// The real clock, which now and then jumps: as after the computer has slept, or when somebody sets
/// the time of day.
class JumpingClock : public Clock {
public:
    QDateTime now() const override { return m_real.now().addMSecs(m_wallAhead.count()); }
    Milliseconds elapsed() const override { return m_real.elapsed() + m_ahead; }

    /// The computer has slept: what fell due meanwhile is called back. The time of day stays that
    /// of the server, which has not slept as long.
    void sleep(Milliseconds time);
    /// Only the time of day is another one from now on.
    void setWall(Milliseconds ahead) { m_wallAhead = ahead; }
    /// How far the time of day is ahead of the server's.
    Milliseconds wallAhead() const { return m_wallAhead; }

protected:
    quint64 schedule(Milliseconds delay, Callback callback) override;
    void unschedule(quint64 id) override { m_waiting.erase(id); }

private:
    struct Waiting {
        Milliseconds due;
        Callback callback;
        Timer timer;
    };
    void arm(quint64 id, Waiting &waiting);

    SystemClock m_real;
    Milliseconds m_ahead{0};
    Milliseconds m_wallAhead{0};
    quint64 m_lastId = 0;
    std::map<quint64, Waiting> m_waiting;
};

} // namespace kiv::soak
