#pragma once

#include "base/Clock.h"

#include <map>

namespace kiv::test {

/// A clock that stands still until a test moves it.
class ManualClock : public Clock {
public:
    QDateTime now() const override { return m_start.addMSecs(m_elapsed.count()); }
    Milliseconds elapsed() const override { return m_elapsed; }

    /// Moves time on, calling what falls due in its order; what is scheduled on the way counts too.
    void advance(Milliseconds by);
    /// How long until the next callback; nothing when none waits.
    std::optional<Milliseconds> nextDue() const;
    qsizetype pending() const { return static_cast<qsizetype>(m_due.size()); }

protected:
    quint64 schedule(Milliseconds delay, Callback callback) override;
    void unschedule(quint64 id) override;

private:
    struct Due {
        Milliseconds at;
        Callback callback;
    };
    QDateTime m_start{QDate(2026, 3, 2), QTime(9, 42), Qt::UTC};
    Milliseconds m_elapsed{0};
    quint64 m_nextId = 1;
    std::map<quint64, Due> m_due;

    std::map<quint64, Due>::iterator earliest();
};

} // namespace kiv::test
