#include "MicrophonePlugin.h"

#include "MicrophoneInput.h"

#include <QMediaDevices>

namespace kiv::microphone {

QList<voice::AudioDevice> MicrophonePlugin::inputs() {
    QList<voice::AudioDevice> inputs;
    for (const QAudioDevice &device : QMediaDevices::audioInputs())
        inputs.append({QString::fromUtf8(device.id()), device.description()});
    return inputs;
}

std::unique_ptr<voice::AudioInput> MicrophonePlugin::input(const QString &id) {
    return std::make_unique<MicrophoneInput>(id.toUtf8());
}

} // namespace kiv::microphone
