#include "soak/MainThread.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QMetaEnum>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <time.h>
#include <unistd.h>

namespace kiv::soak {

using namespace std::chrono_literals;

namespace {

MainThread *meter = nullptr;
constexpr qsizetype mostHolds = 20;
constexpr auto noticed = 50ms;

} // namespace

MainThread::MainThread() {
    m_clock.start();
    // Of the thread that makes this: the main thread.
    m_schedstat = ::open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &MainThread::endPass);
    meter = this;
}

MainThread::~MainThread() {
    meter = nullptr;
    if (m_schedstat >= 0)
        ::close(m_schedstat);
}

MainThread *MainThread::running() {
    return meter;
}

MainThread::Reading MainThread::read() const {
    Reading reading;
    timespec worked{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
    reading.worked = std::chrono::seconds(worked.tv_sec) + Nanoseconds(worked.tv_nsec);
    char text[80] = {};
    if (m_schedstat >= 0 && ::pread(m_schedstat, text, sizeof text - 1, 0) > 0) {
        char *second = nullptr;
        std::strtoull(text, &second, 10);
        reading.queued = Nanoseconds(std::strtoull(second, nullptr, 10));
    }
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    reading.waits = usage.ru_nvcsw;
    reading.pooledQueued = m_pauses.pooledQueued();
    reading.time = Nanoseconds(m_clock.nsecsElapsed());
    return reading;
}

void MainThread::enter() {
    if (m_depth++ > 0 || m_isOwn)
        return;
    if (!m_inPass) {
        m_inPass = true;
        m_own = {};
        m_longest = Nanoseconds(0);
        m_begin = read();
    }
    m_entered = Nanoseconds(m_clock.nsecsElapsed());
}

void MainThread::leave(QObject *receiver, const QEvent *event) {
    if (--m_depth > 0 || m_isOwn || !m_inPass)
        return;
    if (Nanoseconds(m_clock.nsecsElapsed()) - m_entered <= m_longest)
        return;
    static const QMetaEnum types = QMetaEnum::fromType<QEvent::Type>();
    const char *type = types.valueToKey(event->type());
    note(QByteArray(type ? type : "event") + " to " +
         (receiver ? receiver->metaObject()->className() : "nobody"));
}

void MainThread::leave(const char *step) {
    if (--m_depth > 0 || m_isOwn || !m_inPass)
        return;
    if (Nanoseconds(m_clock.nsecsElapsed()) - m_entered > m_longest)
        note(step);
}

void MainThread::note(QByteArray what) {
    m_longest = Nanoseconds(m_clock.nsecsElapsed()) - m_entered;
    m_doing = std::move(what);
}

void MainThread::endPass() {
    if (!m_inPass || m_isOwn)
        return;
    m_inPass = false;
    ++m_passes;
    const Reading end = read();
    const auto span = [&](Nanoseconds Reading::*part) {
        return end.*part - m_begin.*part - m_own.*part;
    };
    // Without a wait of its own all that is not work is time that others had the processor, also
    // where the kernel does not know of them.
    const long waits = end.waits - m_begin.waits;
    Nanoseconds worked = span(&Reading::worked);
    Nanoseconds held = worked;
    if (waits > 0) {
        const Nanoseconds waited = span(&Reading::time) - span(&Reading::queued) - worked;
        held += std::max(waited - std::max(span(&Reading::pooledQueued), 0ns), 0ns);
    }
    if (held > noticed) {
        // A virtual processor that stands still is counted as working.
        const Nanoseconds still =
            m_pauses.stoodStill(Pauses::SteadyClock::now() - span(&Reading::time));
        held -= std::min(still, held);
        worked -= std::min(still, worked);
    }
    const auto isOver = [&](int milliseconds) {
        return held > std::chrono::milliseconds(milliseconds) ? 1 : 0;
    };
    m_over16 += isOver(16);
    m_over50 += isOver(50);
    m_over100 += isOver(100);
    const Hold hold{held, worked, waits, m_doing, m_passes};
    if (worked > m_hardest.worked)
        m_hardest = hold;
    if (held > m_worst.held)
        m_worst = hold;
    if (isOver(100) && m_holds.size() < mostHolds)
        m_holds.append(hold);
}

MainThread::OwnDoing::OwnDoing(MainThread &thread)
    : m_thread(thread), m_isOutermost(!std::exchange(thread.m_isOwn, true)) {
    if (m_isOutermost)
        m_thread.m_ownBegin = m_thread.read();
}

MainThread::OwnDoing::~OwnDoing() {
    if (!m_isOutermost)
        return;
    const Reading end = m_thread.read();
    for (auto part : {&Reading::time, &Reading::worked, &Reading::queued, &Reading::pooledQueued})
        m_thread.m_own.*part += end.*part - m_thread.m_ownBegin.*part;
    m_thread.m_isOwn = false;
}

} // namespace kiv::soak
