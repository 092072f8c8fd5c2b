#pragma once

#include <QList>
#include <QString>

namespace kiv::voice {

/// The sound of a WAV file, its channels mixed into one.
struct Sound {
    int rate = 0; ///< in hertz
    QList<float> samples;
};

/// Reads uncompressed WAV of any rate and number of channels. Throws AudioError, which names the
/// file, for what is no such file.
Sound readWav(const QString &path);

} // namespace kiv::voice
