#pragma once

#include "base/Clock.h"
#include "voice/AudioInput.h"

#include <QObject>

#include <memory>

namespace kiv::store {

class MicrophoneRoom;

/// The microphone that the person has chosen. Choosing another while it is open goes over to that
/// one; a device that gives nothing at all any more is taken for lost.
class ChosenInput : public QObject, public voice::AudioInput {
public:
    /// Room and clock outlive the input.
    ChosenInput(MicrophoneRoom &room, Clock &clock);
    ~ChosenInput() override { stop(); }

    void start(Samples samples, Lost lost) override;
    void stop() override;
    bool running() const override { return m_device != nullptr; }
    double level() const override { return m_device ? m_device->level() : 0; }

private:
    void open();
    void changeDevice();
    void hand(const QByteArray &samples);
    void lose(const QString &reason);
    void watch();

    MicrophoneRoom &m_room;
    Clock &m_clock;
    std::unique_ptr<voice::AudioInput> m_device;
    Samples m_samples;
    Lost m_lost;
    Clock::Milliseconds m_heardAt{0};
    Clock::Timer m_silence;
};

} // namespace kiv::store
