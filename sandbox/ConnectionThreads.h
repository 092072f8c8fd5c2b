#pragma once

#include <httplib.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace kiv::sandbox {

/// Threads for connections, started as they are needed: an open stream keeps its thread for hours,
/// and a server that nobody talks to yet has none.
class ConnectionThreads : public httplib::TaskQueue {
public:
    explicit ConnectionThreads(size_t most) : m_most(most) {}

    void enqueue(std::function<void()> job) override;
    void shutdown() override;
    /// Whether connections wait for others to end.
    bool isCrowded();

private:
    void work();

    const size_t m_most;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_jobs;
    std::vector<std::thread> m_threads;
    size_t m_idle = 0;
    bool m_ended = false;
};

} // namespace kiv::sandbox
