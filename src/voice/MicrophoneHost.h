#pragma once

#include "voice/AudioDevices.h"

#include <QPluginLoader>

namespace kiv::voice {

/// The microphones that the microphone plugin knows. The plugin brings the sound system's libraries
/// along: until somebody asks for a microphone, nothing of them is in the process.
class MicrophoneHost : public AudioDevices {
public:
    /// `file` is the plugin's library, its ending left out.
    explicit MicrophoneHost(const QString &file) : m_loader(file) {}

    QList<AudioDevice> inputs() override;
    std::unique_ptr<AudioInput> input(const QString &id) override;

private:
    AudioDevices *plugin();

    QPluginLoader m_loader;
};

} // namespace kiv::voice

#define KIV_MICROPHONE_PLUGIN "kiv.MicrophonePlugin/1"
Q_DECLARE_INTERFACE(kiv::voice::AudioDevices, KIV_MICROPHONE_PLUGIN)
