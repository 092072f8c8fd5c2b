#pragma once

#include "voice/MicrophoneHost.h"

#include <QObject>

namespace kiv::microphone {

/// The microphones as the sound system has them.
class MicrophonePlugin : public QObject, public voice::AudioDevices {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIV_MICROPHONE_PLUGIN)
    Q_INTERFACES(kiv::voice::AudioDevices)
public:
    QList<voice::AudioDevice> inputs() override;
    std::unique_ptr<voice::AudioInput> input(const QString &id) override;
};

} // namespace kiv::microphone
