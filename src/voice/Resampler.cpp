#include "voice/Resampler.h"

#include "voice/AudioInput.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace kiv::voice {

namespace {

/// Of the lower of the two rates: what is above it is on its way out.
constexpr double cutoffShare = 0.445;
/// To either side, in samples of the lower rate.
constexpr double reachOfFilter = 24;

/// A sinc of this cutoff (in turns per sample) at `distance` samples, faded out at `reach`.
double weight(double distance, double cutoff, double reach) {
    if (std::abs(distance) >= reach)
        return 0;
    const double turn = std::numbers::pi * distance;
    const double sinc = distance == 0 ? 2 * cutoff : std::sin(2 * cutoff * turn) / turn;
    const double place = turn / reach;
    return sinc * (0.42 + 0.5 * std::cos(place) + 0.08 * std::cos(2 * place)); // Blackman's window
}

} // namespace

Resampler::Resampler(int rate) {
    const int common = std::gcd(rate, sampleRate);
    m_step = rate / common;
    m_phases = sampleRate / common;
    const double lower = std::min(rate, sampleRate);
    m_reach = static_cast<int>(std::ceil(reachOfFilter * rate / lower));
    makeFilter(cutoffShare * lower / rate);
    // The first sample has nothing before it.
    m_waiting.assign(static_cast<size_t>(m_reach) - 1, 0);
}

void Resampler::makeFilter(double cutoff) {
    const auto width = static_cast<size_t>(2 * m_reach);
    m_filter.resize(width * static_cast<size_t>(m_phases));
    for (int phase = 0; phase < m_phases; ++phase) {
        const std::span row(m_filter.data() + width * static_cast<size_t>(phase), width);
        const double place = m_reach - 1 + static_cast<double>(phase) / m_phases;
        double sum = 0;
        for (size_t tap = 0; tap < width; ++tap)
            sum += weight(static_cast<double>(tap) - place, cutoff, m_reach);
        for (size_t tap = 0; tap < width; ++tap)
            row[tap] =
                static_cast<float>(weight(static_cast<double>(tap) - place, cutoff, m_reach) / sum);
    }
}

QList<float> Resampler::add(std::span<const float> samples) {
    m_waiting.insert(m_waiting.end(), samples.begin(), samples.end());
    const auto width = static_cast<size_t>(2 * m_reach);
    QList<float> made;
    size_t first = 0;
    while (first + width <= m_waiting.size()) {
        const float *row = m_filter.data() + width * static_cast<size_t>(m_phase);
        made.append(std::inner_product(row, row + width, m_waiting.data() + first, 0.0f));
        m_phase += m_step;
        first += static_cast<size_t>(m_phase / m_phases);
        m_phase %= m_phases;
    }
    m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(first));
    return made;
}

} // namespace kiv::voice
