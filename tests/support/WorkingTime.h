#pragma once

#include <ctime>

namespace kiv::test {

/// Seconds that this thread has worked so far. Waiting does not count, nor does what else the
/// machine is busy with.
inline double workingTime() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace kiv::test
