#pragma once

#include "soak/Calm.h"
#include "soak/Memory.h"
#include "soak/Stage.h"

namespace kiv::soak {

/// How long the main thread may be held in one pass.
struct HoldBound {
    std::chrono::milliseconds longest{100};
    /// A machine that others share takes processors and the disk away: only the time that the
    /// thread works counts as held.
    bool onlyWork = false;
};

/// One run: steps by chance, and now and then a calm in which everything has to come right.
class Soak {
public:
    Soak(quint64 seed, std::chrono::seconds length, HoldBound bound);

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
    const HoldBound m_bound;
    QElapsedTimer m_timer;
    Stage m_stage;
    Witness m_witness;
    Calm m_calm;
    Memory m_memory;
    int m_calms = 0;
};

} // namespace kiv::soak
