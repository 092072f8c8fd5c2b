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
    QElapsedTimer m_since;
    QHash<int, Callback> m_due;
};

} // namespace kiv
