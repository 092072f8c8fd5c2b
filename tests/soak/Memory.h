#pragma once

#include <QList>

#include <chrono>

namespace kiv::soak {

/// The memory of this process over a run: the part of it that counts as its own (PSS), in KiB.
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
