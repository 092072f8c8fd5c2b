#include "store/ChosenInput.h"

#include "store/MicrophoneRoom.h"

namespace kiv::store {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// An open microphone gives sound all the time, also when nobody speaks. A wireless one takes seconds
/// to begin.
constexpr Clock::Milliseconds longestGap = 6s;

} // namespace

ChosenInput::ChosenInput(MicrophoneRoom &room, Clock &clock) : m_room(room), m_clock(clock) {
    connect(&room, &MicrophoneRoom::chosenChanged, this, &ChosenInput::changeDevice);
}

void ChosenInput::start(Samples samples, Lost lost) {
    stop();
    m_samples = std::move(samples);
    m_lost = std::move(lost);
    open();
}

void ChosenInput::open() {
    m_device = m_room.open([this](const QByteArray &samples) { hand(samples); },
                           [this](const QString &reason) { lose(reason); });
    m_heardAt = m_clock.elapsed();
    watch();
}

void ChosenInput::changeDevice() {
    if (!running())
        return;
    m_device->stop();
    try {
        open();
    } catch (const voice::AudioError &error) {
        lose(QString::fromUtf8(error.what()));
    }
}

void ChosenInput::hand(const QByteArray &samples) {
    m_heardAt = m_clock.elapsed();
    m_room.setLevel(m_device->level());
    m_samples(samples);
}

void ChosenInput::watch() {
    const auto quiet = m_clock.elapsed() - m_heardAt;
    if (quiet >= longestGap)
        lose(u"it gives no sound any more"_s);
    else
        m_silence = m_clock.after(longestGap - quiet, [this] { watch(); });
}

void ChosenInput::lose(const QString &reason) {
    const Lost lost = m_lost;
    stop();
    lost(reason);
}

void ChosenInput::stop() {
    if (!running())
        return;
    m_silence.stop();
    m_device->stop();
    m_device.reset();
    m_room.setLevel(0);
}

} // namespace kiv::store
