#pragma once

#include "base/Clock.h"
#include "voice/AudioInput.h"
#include "voice/SoundLevel.h"

namespace kiv::voice {

/// Plays a WAV file as if it were spoken into a microphone, from its beginning at each start, and
/// is silent after its end, as a person is who has spoken.
class FileInput : public AudioInput {
public:
    /// The clock outlives the input.
    FileInput(Clock &clock, QString path);

    void start(Samples samples, Lost lost) override;
    void stop() override;
    bool running() const override { return m_running; }
    double level() const override { return m_level.value(); }

private:
    void play();
    void scheduleNext();

    Clock &m_clock;
    QString m_path;
    QByteArray m_sound; ///< of the whole file, as it is handed over
    Samples m_samples;
    SoundLevel m_level;
    bool m_running = false;
    Clock::Milliseconds m_startedAt{0};
    qsizetype m_played = 0; ///< bytes
    Clock::Timer m_timer;
};

} // namespace kiv::voice
