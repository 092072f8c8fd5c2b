#pragma once

#include <QList>

#include <chrono>

namespace kiv::soak {

/// The memory that belongs to this process alone over a run (anonymous PSS), in KiB: what libraries
/// and other files take depends on who else has them open at the moment.
class Memory {
public:
    void sample(std::chrono::seconds at);

    /// The median of the readings from `from` to `to`; 0 without any.
    qint64 median(std::chrono::seconds from, std::chrono::seconds to) const;

private:
    struct Reading {
        std::chrono::seconds at;
        qint64 kib;
    };
    QList<Reading> m_readings;
};

} // namespace kiv::soak
