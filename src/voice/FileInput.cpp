#include "voice/FileInput.h"

#include "voice/Pcm.h"
#include "voice/Resampler.h"
#include "voice/WavFile.h"

namespace kiv::voice {

using namespace std::chrono_literals;

namespace {

constexpr auto piece = 50ms;
constexpr qsizetype bytesPerMillisecond = sampleRate * 2 / 1000;

} // namespace

FileInput::FileInput(Clock &clock, QString path) : m_clock(clock), m_path(std::move(path)) {}

void FileInput::start(Samples samples, Lost) {
    stop();
    const Sound sound = readWav(m_path);
    m_sound = toInt16(sound.rate == sampleRate ? sound.samples
                                               : Resampler(sound.rate).add(sound.samples));
    m_samples = std::move(samples);
    m_startedAt = m_clock.elapsed();
    m_played = 0;
    m_running = true;
    scheduleNext();
}

void FileInput::scheduleNext() {
    m_timer = m_clock.after(piece, [this] { play(); });
}

/// Hands over what was to be heard since the last time, however long that was.
void FileInput::play() {
    scheduleNext();
    const qsizetype due = (m_clock.elapsed() - m_startedAt).count() * bytesPerMillisecond;
    QByteArray heard = m_sound.mid(m_played, due - m_played);
    heard.append(due - m_played - heard.size(), '\0');
    m_played = due;
    m_level.add(heard);
    const Samples samples = m_samples; // stop() may be called from there
    samples(heard);
}

void FileInput::stop() {
    m_timer.stop();
    m_running = false;
    m_sound.clear();
    m_level.reset();
}

} // namespace kiv::voice
