#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

namespace kiv::soak {

/// What the machine takes from this process without the kernel counting it for the main thread: a
/// processor that stands still as a whole, and the time for which the threads of the pools, which
/// the main thread waits for when it paints, stood in the queue for one.
class Pauses {
public:
    using Nanoseconds = std::chrono::nanoseconds;
    using SteadyClock = std::chrono::steady_clock;

    Pauses();
    ~Pauses();
    Pauses(const Pauses &) = delete;
    Pauses &operator=(const Pauses &) = delete;

    /// How long the threads of the pools that are there have stood in the queue, all together.
    Nanoseconds pooledQueued() const;
    /// For how much of the time from then to now one processor or several stood still.
    Nanoseconds stoodStill(SteadyClock::time_point since) const;

private:
    struct Pause {
        SteadyClock::time_point begin;
        SteadyClock::time_point end;
    };
    /// A thread of a pool.
    struct Pooled {
        int file = -1;         ///< of the kernel's counts for it
        Nanoseconds before{0}; ///< what it had stood in the queue when it was found
    };
    void watchProcessor(const std::stop_token &stop, int processor);
    void watchPools(const std::stop_token &stop);
    void lookAtThreads();

    mutable std::mutex m_mutex;
    QList<Pause> m_pauses;           ///< of the last seconds, by their ends
    QHash<QString, Pooled> m_pooled; ///< by the kernel's number
    std::vector<std::jthread> m_watchers;
};

} // namespace kiv::soak
