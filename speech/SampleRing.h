#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace kiv::speech {

/// Samples a second: everything here counts time in them.
constexpr qint64 sampleRate = 16000;

/// The number of samples in so many milliseconds.
constexpr qint64 samplesIn(qint64 milliseconds) {
    return milliseconds * sampleRate / 1000;
}

/// A stretch of sound, by the numbers of its samples since the beginning: [begin, end).
struct Stretch {
    qint64 begin = 0;
    qint64 end = 0;

    friend bool operator==(const Stretch &, const Stretch &) = default;
};

/// The latest sound. A sample keeps its number when older ones have been let go.
class SampleRing {
public:
    explicit SampleRing(qint64 capacity) : m_samples(static_cast<size_t>(capacity)) {}

    void append(std::span<const float> samples);
    /// What is still kept of `wanted`.
    std::vector<float> copy(Stretch wanted) const;
    /// The number that the next sample gets.
    qint64 end() const { return m_end; }

private:
    size_t slot(qint64 number) const { return static_cast<size_t>(number) % m_samples.size(); }

    std::vector<float> m_samples;
    qint64 m_end = 0;
};

} // namespace kiv::speech
