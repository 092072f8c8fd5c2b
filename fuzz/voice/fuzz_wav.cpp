#include "../FuzzFile.h"

#include "voice/AudioInput.h"
#include "voice/WavFile.h"

#include <cmath>

/// A sound that is heard has a rate, samples that are numbers, and no more of them than bytes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const FuzzFile file(data, size);
    try {
        const auto sound = kiv::voice::readWav(file.path());
        mustHold(sound.rate > 0 && sound.samples.size() <= static_cast<qsizetype>(size));
        for (const float sample : sound.samples)
            mustHold(std::isfinite(sample));
    } catch (const kiv::voice::AudioError &error) {
        mustHold(QString::fromUtf8(error.what()).startsWith(file.path()));
    }
    return 0;
}
