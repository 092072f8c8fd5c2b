#include "ConnectionThreads.h"

namespace kiv::sandbox {

void ConnectionThreads::enqueue(std::function<void()> job) {
    const std::lock_guard lock(m_mutex);
    m_jobs.push_back(std::move(job));
    if (m_idle < m_jobs.size() && m_threads.size() < m_most)
        m_threads.emplace_back([this] { work(); });
    m_wake.notify_one();
}

void ConnectionThreads::shutdown() {
    {
        const std::lock_guard lock(m_mutex);
        m_ended = true;
    }
    m_wake.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

bool ConnectionThreads::isCrowded() {
    const std::lock_guard lock(m_mutex);
    return m_jobs.size() > m_idle && m_threads.size() == m_most;
}

void ConnectionThreads::work() {
    std::unique_lock lock(m_mutex);
    while (true) {
        ++m_idle;
        m_wake.wait(lock, [this] { return m_ended || !m_jobs.empty(); });
        --m_idle;
        if (m_jobs.empty())
            return;
        const std::function<void()> job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

} // namespace kiv::sandbox
