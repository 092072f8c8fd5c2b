#pragma once

#include "speech/Beat.h"
#include "speech/VoiceActivity.h"
#include "speech/WordAgreement.h"

#include <QString>

#include <functional>

namespace kiv::speech {

/// What is said about an utterance.
struct Heard {
    QString text;
    bool final = false;
};

/// Turns a stream of sound into utterances: finds where somebody speaks, has the growing utterance
/// read now and then and the finished one once more, and says what is understood.
class Listener {
public:
    using Read = std::function<QString(const std::vector<float> &)>;
    using Now = std::function<Beat::Milliseconds()>;
    using Say = std::function<void(const Heard &)>;

    Listener(VoiceActivity &activity, Read read, Now now, Say say);

    /// Takes sound; says what ends in it.
    void hear(std::span<const float> samples);
    /// Reads the utterance that is being spoken, when it is time to. Not in a pause, which may be
    /// its end: the last reading is not to wait for this one.
    void look();
    /// Finishes the utterance that is being spoken and forgets the sound.
    void end();
    /// Forgets the sound.
    void drop();

private:
    void hearWindow();
    void finish(Stretch speech);
    QString read(Stretch wanted) const;
    bool pausing() const;
    void cut();
    void restartActivity();

    VoiceActivity &m_activity;
    Read m_read;
    Now m_now;
    Say m_say;
    SampleRing m_ring;
    std::vector<float> m_window; ///< the samples of the window that is not full yet
    qint64 m_origin = 0;         ///< where the activity began to count
    qint64 m_finished = 0;       ///< everything before has been read for good
    std::optional<qint64> m_spokenFrom;
    WordAgreement m_words;
    Beat m_beat;
};

} // namespace kiv::speech
