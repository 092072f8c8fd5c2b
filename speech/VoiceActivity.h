#pragma once

#include "speech/SampleRing.h"

#include <optional>
#include <span>

namespace kiv::speech {

/// Tells speech from everything else in a stream of sound.
class VoiceActivity {
public:
    /// Samples that are looked at together.
    static constexpr qint64 window = 512;
    /// How long somebody has to speak before it counts, and to be silent before it ends.
    static constexpr qint64 leastSpeech = samplesIn(150);
    static constexpr qint64 leastSilence = samplesIn(600);

    virtual ~VoiceActivity() = default;

    /// Takes the next `window` samples.
    virtual void accept(std::span<const float> samples) = 0;
    virtual bool speaking() const = 0;
    /// The next stretch of speech that has ended, counted since the last `restart`.
    virtual std::optional<Stretch> takeEnded() = 0;
    /// Forgets what was heard; the next sample has the number 0.
    virtual void restart() = 0;
};

} // namespace kiv::speech
