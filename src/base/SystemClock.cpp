#include "base/SystemClock.h"

#include <QTimerEvent>

namespace kiv {

SystemClock::SystemClock(QObject *parent) : QObject(parent) {
    m_since.start();
}

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTimeUtc();
}

Clock::Milliseconds SystemClock::elapsed() const {
    return Milliseconds(m_since.elapsed());
}

quint64 SystemClock::schedule(Milliseconds delay, Callback callback) {
    const int id = startTimer(delay, Qt::PreciseTimer);
    m_due.insert(id, std::move(callback));
    return static_cast<quint64>(id);
}

void SystemClock::unschedule(quint64 id) {
    const int timer = static_cast<int>(id);
    if (m_due.remove(timer))
        killTimer(timer);
}

void SystemClock::timerEvent(QTimerEvent *event) {
    const Callback callback = m_due.take(event->timerId());
    killTimer(event->timerId());
    if (callback)
        callback();
}

} // namespace kiv
