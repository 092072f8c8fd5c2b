#include "speech/SampleRing.h"

#include <algorithm>

namespace kiv::speech {

void SampleRing::append(std::span<const float> samples) {
    for (const float sample : samples)
        m_samples[slot(m_end++)] = sample;
}

std::vector<float> SampleRing::copy(Stretch wanted) const {
    const qint64 oldest = std::max<qint64>(0, m_end - static_cast<qint64>(m_samples.size()));
    const qint64 begin = std::max(wanted.begin, oldest);
    const qint64 end = std::min(wanted.end, m_end);
    std::vector<float> result;
    result.reserve(static_cast<size_t>(std::max<qint64>(0, end - begin)));
    for (qint64 number = begin; number < end; ++number)
        result.push_back(m_samples[slot(number)]);
    return result;
}

} // namespace kiv::speech
