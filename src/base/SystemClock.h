#pragma once

#include "base/Clock.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>

namespace kiv {

/// The clock of a running program: Qt timers of the thread that made it.
class SystemClock : public QObject, public Clock {
    Q_OBJECT
public:
    explicit SystemClock(QObject *parent = nullptr);

    QDateTime now() const override;
    Milliseconds elapsed() const override;

protected:
    quint64 schedule(Milliseconds delay, Callback callback) override;
    void unschedule(quint64 id) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct Due {
        quint64 id = 0;
        Callback callback;
    };

    QElapsedTimer m_since;
    quint64 m_lastId = 0;
    QHash<int, Due> m_due;        ///< by Qt's number of the timer, which a later one may get again
    QHash<quint64, int> m_timers; ///< Qt's numbers of those that are due
};

} // namespace kiv
