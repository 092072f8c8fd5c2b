#include "speech/Listener.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kiv::speech {

namespace {

constexpr qint64 kept = samplesIn(60'000);
constexpr qint64 longest = samplesIn(20'000);

/// Read beside an utterance: without it, first sounds are lost.
constexpr qint64 before = samplesIn(300);
constexpr qint64 after = samplesIn(100);
constexpr qint64 beforeGrowing = samplesIn(500);

constexpr qint64 pause = samplesIn(200);

float loudness(const std::vector<float> &samples) {
    const float power = std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.F);
    return std::sqrt(power / static_cast<float>(std::max<size_t>(1, samples.size())));
}

} // namespace

Listener::Listener(VoiceActivity &activity, Read read, Now now, Say say)
    : m_activity(activity),
      m_read(std::move(read)),
      m_now(std::move(now)),
      m_say(std::move(say)),
      m_ring(kept) {}

void Listener::hear(std::span<const float> samples) {
    while (!samples.empty()) {
        const size_t room = size_t(VoiceActivity::window) - m_window.size();
        const auto part = samples.first(std::min(room, samples.size()));
        m_window.insert(m_window.end(), part.begin(), part.end());
        samples = samples.subspan(part.size());
        if (m_window.size() == size_t(VoiceActivity::window))
            hearWindow();
    }
}

void Listener::hearWindow() {
    m_ring.append(m_window);
    m_activity.accept(m_window);
    m_window.clear();
    while (const auto ended = m_activity.takeEnded())
        finish({m_origin + ended->begin, m_origin + ended->end});
    if (!m_activity.speaking()) {
        m_spokenFrom.reset();
    } else if (!m_spokenFrom) {
        m_spokenFrom = std::max(m_finished, m_ring.end() - VoiceActivity::leastSpeech -
                                                2 * VoiceActivity::window);
    } else if (m_ring.end() - *m_spokenFrom >= longest) {
        cut();
    }
}

void Listener::look() {
    if (!m_spokenFrom || !m_beat.due(m_now()) || pausing())
        return;
    const auto from = m_now();
    const QString reading =
        read({std::max(m_finished, *m_spokenFrom - beforeGrowing), m_ring.end() + after});
    m_beat.read(from, m_now(), !m_words.shown());
    if (const auto words = m_words.add(reading))
        m_say({*words, false});
}

void Listener::finish(Stretch speech) {
    const Stretch around{std::max(m_finished, speech.begin - before), speech.end + after};
    QString text = read(around);
    if (text.isEmpty())
        text = read(speech);
    if (text.isEmpty())
        text = m_words.lastReading();
    m_finished = std::min(around.end, m_ring.end());
    m_spokenFrom.reset();
    m_words.clear();
    m_beat.clear();
    m_say({text, true});
}

/// Silence stands for what has not been heard yet: where sound breaks off within a word, the
/// recogniser tends to say the same words over and over.
QString Listener::read(Stretch wanted) const {
    std::vector<float> samples = m_ring.copy(wanted);
    samples.resize(samples.size() + size_t(std::max<qint64>(0, wanted.end - m_ring.end())));
    return m_read(samples);
}

bool Listener::pausing() const {
    constexpr float quiet = 0.1F; // of what is said
    return loudness(m_ring.copy({m_ring.end() - pause, m_ring.end()})) <
           quiet * loudness(m_ring.copy({*m_spokenFrom, m_ring.end()}));
}

void Listener::cut() {
    finish({*m_spokenFrom, m_ring.end()});
    restartActivity();
}

void Listener::end() {
    m_ring.append(m_window);
    m_window.clear();
    if (m_spokenFrom)
        finish({*m_spokenFrom, m_ring.end()});
    drop();
}

void Listener::drop() {
    m_window.clear();
    m_finished = m_ring.end();
    m_spokenFrom.reset();
    m_words.clear();
    m_beat.clear();
    restartActivity();
}

void Listener::restartActivity() {
    m_activity.restart();
    m_origin = m_ring.end();
}

} // namespace kiv::speech
