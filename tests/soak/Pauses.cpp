#include "soak/Pauses.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <pthread.h>
#include <sched.h>
#include <unistd.h>

namespace kiv::soak {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto beat = 4ms;
/// What a thread that is to wake may be late where others work.
constexpr auto lateness = 8ms;
constexpr auto kept = 5s;
/// A pool lets a thread go that had nothing to do for half a minute.
constexpr auto nextLook = 100ms;

Pauses::Nanoseconds queuedOf(int file) {
    char text[80] = {};
    if (::pread(file, text, sizeof text - 1, 0) <= 0)
        return {};
    char *second = nullptr;
    std::strtoull(text, &second, 10);
    return Pauses::Nanoseconds(std::strtoull(second, nullptr, 10));
}

} // namespace

Pauses::Pauses() {
    cpu_set_t ours;
    if (::sched_getaffinity(0, sizeof ours, &ours) == 0) {
        for (int processor = 0; processor < CPU_SETSIZE; ++processor) {
            if (CPU_ISSET(processor, &ours))
                m_watchers.emplace_back([this, processor](const std::stop_token &stop) {
                    watchProcessor(stop, processor);
                });
        }
    }
    m_watchers.emplace_back([this](const std::stop_token &stop) { watchPools(stop); });
}

Pauses::~Pauses() {
    m_watchers.clear();
    for (const Pooled &pooled : m_pooled)
        ::close(pooled.file);
}

void Pauses::watchProcessor(const std::stop_token &stop, int processor) {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(processor, &one);
    if (::pthread_setaffinity_np(::pthread_self(), sizeof one, &one) != 0)
        return;
    auto due = SteadyClock::now();
    while (!stop.stop_requested()) {
        due += beat;
        std::this_thread::sleep_until(due);
        auto now = SteadyClock::now();
        if (now - due > lateness) {
            const std::lock_guard lock(m_mutex);
            now = SteadyClock::now(); // the ends stay in their order
            m_pauses.removeIf([&](const Pause &pause) { return now - pause.end > kept; });
            m_pauses.append({due, now});
        }
        due = std::max(due, now - beat);
    }
}

void Pauses::watchPools(const std::stop_token &stop) {
    while (!stop.stop_requested()) {
        lookAtThreads();
        std::this_thread::sleep_for(nextLook);
    }
}

/// Only what is changed is locked: the main thread reads it in every pass.
void Pauses::lookAtThreads() {
    const QDir folder(u"/proc/self/task"_s);
    const QStringList threads = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    {
        const std::lock_guard lock(m_mutex);
        m_pooled.removeIf([&](const auto &pooled) {
            const bool isGone = !threads.contains(pooled.key());
            if (isGone)
                ::close(pooled.value().file);
            return isGone;
        });
    }
    for (const QString &thread : threads) {
        QFile name(folder.filePath(thread + u"/comm"_s));
        if (m_pooled.contains(thread) || !name.open(QIODevice::ReadOnly) ||
            name.readAll().trimmed() != "Thread (pooled)")
            continue;
        const QByteArray counts = QFile::encodeName(folder.filePath(thread + u"/schedstat"_s));
        const int file = ::open(counts.constData(), O_RDONLY | O_CLOEXEC);
        if (file < 0)
            continue;
        const std::lock_guard lock(m_mutex);
        m_pooled.insert(thread, {file, queuedOf(file)});
    }
}

Pauses::Nanoseconds Pauses::pooledQueued() const {
    Nanoseconds sum{0};
    const std::lock_guard lock(m_mutex);
    for (const Pooled &pooled : m_pooled)
        sum += queuedOf(pooled.file) - pooled.before;
    return sum;
}

Pauses::Nanoseconds Pauses::stoodStill(SteadyClock::time_point since) const {
    const std::lock_guard lock(m_mutex);
    Nanoseconds sum{0};
    // From the last one back, so that what several processors lost together counts once.
    auto until = SteadyClock::time_point::max();
    for (auto pause = m_pauses.crbegin(); pause != m_pauses.crend(); ++pause) {
        const auto begin = std::max(pause->begin, since);
        const auto end = std::min(pause->end, until);
        if (begin < end) {
            sum += end - begin;
            until = begin;
        }
    }
    return sum;
}

} // namespace kiv::soak
