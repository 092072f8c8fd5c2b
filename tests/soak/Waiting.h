#pragma once

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace kiv::soak {

/// Lets the program run for a while.
inline void letRun(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Lets the program run until `holds`; false when that takes longer than `limit`.
template <typename Holds>
bool waitUntil(std::chrono::milliseconds limit, Holds holds) {
    using SteadyClock = std::chrono::steady_clock;
    const auto end = SteadyClock::now() + limit;
    while (!holds()) {
        if (SteadyClock::now() >= end)
            return false;
        letRun(std::chrono::milliseconds(10));
    }
    return true;
}

} // namespace kiv::soak
