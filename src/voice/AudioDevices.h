#pragma once

#include "voice/AudioInput.h"

#include <QList>

#include <memory>

namespace kiv::voice {

/// An input of this computer.
struct AudioDevice {
    QString id;   ///< the same after a restart
    QString name; ///< as the system shows it

    bool operator==(const AudioDevice &) const = default;
};

/// The microphones of this computer. Nothing asks the system for them before the first call.
class AudioDevices {
public:
    virtual ~AudioDevices() = default;

    /// Those that are there now.
    virtual QList<AudioDevice> inputs() = 0;
    /// The device of this id, or the system's own choice for an empty id or one that is not there.
    /// Throws AudioError where there is no sound system; whether the device itself can be opened
    /// is known when it is started.
    virtual std::unique_ptr<AudioInput> input(const QString &id) = 0;
};

} // namespace kiv::voice
