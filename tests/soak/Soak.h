#pragma once

#include "soak/Calm.h"
#include "soak/Memory.h"
#include "soak/Stage.h"

namespace kiv::soak {

/// One run: steps by chance, and now and then a calm in which everything has to come right.
class Soak {
public:
    /// The main thread may be held for `longestHold`.
    Soak(quint64 seed, std::chrono::seconds length, std::chrono::milliseconds longestHold);

    /// Prints a summary, and what went wrong; whether nothing did.
    bool run();

private:
    bool begin();
    void takeSteps(std::chrono::seconds time);
    void checkMemory();
    void checkMainThread();
    std::chrono::seconds elapsed() const;
    void print() const;

    const quint64 m_seed;
    const std::chrono::seconds m_length;
    const std::chrono::milliseconds m_longestHold;
    QElapsedTimer m_timer;
    Stage m_stage;
    Witness m_witness;
    Calm m_calm;
    Memory m_memory;
    int m_calms = 0;
};

} // namespace kiv::soak
