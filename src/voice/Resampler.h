#pragma once

#include <QList>

#include <span>
#include <vector>

namespace kiv::voice {

/// Brings a stream of samples from any rate to the one at which speech is recognised. What is too
/// high for the new rate is taken out instead of folding back into the speech.
class Resampler {
public:
    /// `rate` is that of the samples that are added, in hertz.
    explicit Resampler(int rate);

    /// The samples that can be made now; the last few wait for what follows them.
    QList<float> add(std::span<const float> samples);

private:
    void makeFilter(double cutoff);

    int m_step;   ///< between two new samples, in parts of an old one
    int m_phases; ///< parts of an old sample
    int m_reach;  ///< old samples that count to either side of a new one
    int m_phase = 0;
    std::vector<float> m_filter;  ///< one row of weights for each phase
    std::vector<float> m_waiting; ///< old samples that still count, the oldest first
};

} // namespace kiv::voice
