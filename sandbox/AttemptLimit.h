#pragma once

#include <QHash>
#include <QString>

#include <chrono>
#include <deque>
#include <mutex>

namespace kiv::sandbox {

/// Counts failed sign-ins of one address and refuses more for a while.
class AttemptLimit {
public:
    /// Throws Refusal (429) when the address has failed too often lately.
    void check(const QString &email);
    void failed(const QString &email);
    void succeeded(const QString &email);

private:
    using Clock = std::chrono::steady_clock;

    std::mutex m_mutex;
    QHash<QString, std::deque<Clock::time_point>> m_failures;
};

} // namespace kiv::sandbox
