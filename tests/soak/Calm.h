#pragma once

#include "soak/Witness.h"

namespace kiv::soak {

struct Stage;

/// Lifts everything that disturbs the program, waits until it has come to rest, and compares what
/// it shows with what the server has.
class Calm {
public:
    explicit Calm(Stage &stage, Witness &witness) : m_stage(stage), m_witness(witness) {}

    /// Checks the conversation that is open, or each that anything was sent to.
    enum class Extent { Open, All };
    void check(Extent extent);

private:
    bool restore();
    bool comeToRest();
    void checkOpenChat();
    bool hasFailed() const;
    template <typename Holds>
    bool within(std::chrono::seconds bound, Holds holds);

    Stage &m_stage;
    Witness &m_witness;
};

} // namespace kiv::soak
