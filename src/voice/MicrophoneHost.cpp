#include "voice/MicrophoneHost.h"

namespace kiv::voice {

AudioDevices *MicrophoneHost::plugin() {
    return qobject_cast<AudioDevices *>(m_loader.instance());
}

QList<AudioDevice> MicrophoneHost::inputs() {
    AudioDevices *devices = plugin();
    return devices ? devices->inputs() : QList<AudioDevice>();
}

std::unique_ptr<AudioInput> MicrophoneHost::input(const QString &id) {
    AudioDevices *devices = plugin();
    if (!devices)
        throw AudioError(m_loader.errorString().toStdString());
    return devices->input(id);
}

} // namespace kiv::voice
