#pragma once

#include "voice/AudioDevices.h"
#include "voice/FileInput.h"

#include <QFileInfo>

namespace kiv::voice {

/// A computer whose only microphone is a file.
class FileDevices : public AudioDevices {
public:
    /// The clock outlives the devices.
    FileDevices(Clock &clock, QString path) : m_clock(clock), m_path(std::move(path)) {}

    QList<AudioDevice> inputs() override { return {{m_path, QFileInfo(m_path).fileName()}}; }
    std::unique_ptr<AudioInput> input(const QString &) override {
        return std::make_unique<FileInput>(m_clock, m_path);
    }

private:
    Clock &m_clock;
    QString m_path;
};

} // namespace kiv::voice
