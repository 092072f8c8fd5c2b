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
    const int timer = startTimer(delay, Qt::PreciseTimer);
    m_due.insert(timer, {++m_lastId, std::move(callback)});
    m_timers.insert(m_lastId, timer);
    return m_lastId;
}

void SystemClock::unschedule(quint64 id) {
    const auto timer = m_timers.constFind(id);
    if (timer == m_timers.cend())
        return;
    killTimer(*timer);
    m_due.remove(*timer);
    m_timers.erase(timer);
}

void SystemClock::timerEvent(QTimerEvent *event) {
    const Due due = m_due.take(event->timerId());
    m_timers.remove(due.id);
    killTimer(event->timerId());
    if (due.callback)
        due.callback();
}

} // namespace kiv
