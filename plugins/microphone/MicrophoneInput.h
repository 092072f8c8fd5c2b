#pragma once

#include "voice/AudioInput.h"
#include "voice/Pcm.h"
#include "voice/Resampler.h"
#include "voice/SoundLevel.h"

#include <QAudioSource>
#include <QMediaDevices>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

namespace kiv::microphone {

/// A microphone in the format that it prefers, brought to the one of speech.
class MicrophoneInput : public QObject, public voice::AudioInput {
    Q_OBJECT
public:
    /// The device of this id; the system's own choice when it is empty or not there.
    explicit MicrophoneInput(QByteArray id);
    ~MicrophoneInput() override { stop(); }

    void start(Samples samples, Lost lost) override;
    void stop() override;
    bool running() const override { return m_source != nullptr; }
    double level() const override { return m_level.value(); }

private:
    void read();
    void lookForLoss();
    void lose(const QString &reason);

    QByteArray m_id;
    QAudioDevice m_device; ///< that is open
    QMediaDevices m_devices;
    std::unique_ptr<QAudioSource> m_source;
    QPointer<QIODevice> m_stream; ///< of the source, which deletes it when the sound system is gone
    Samples m_samples;
    Lost m_lost;
    voice::PcmFormat m_format = voice::PcmFormat::Int16;
    int m_channels = 1;
    QByteArray m_rest; ///< of a frame that has not come as a whole
    std::optional<voice::Resampler> m_resampler;
    voice::SoundLevel m_level;
};

} // namespace kiv::microphone
