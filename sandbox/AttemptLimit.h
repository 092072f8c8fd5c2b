#pragma once

#include <QHash>
#include <QString>

#include <chrono>
#include <deque>
#include <mutex>

namespace kiv::sandbox {

/// Counts wrong passwords for one address or account and refuses to look at more for a while.
class AttemptLimit {
public:
    /// Counts an attempt as wrong before anything is looked up, so that those made at the same time
    /// count too. Throws Refusal (429) when there were too many lately.
    void begin(const QString &whose);
    /// It was right: nothing before it counts any more.
    void succeeded(const QString &whose);

private:
    using Clock = std::chrono::steady_clock;

    std::mutex m_mutex;
    QHash<QString, std::deque<Clock::time_point>> m_attempts;
};

} // namespace kiv::sandbox
