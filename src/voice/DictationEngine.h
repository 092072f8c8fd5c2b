#pragma once

#include "voice/AudioInput.h"
#include "voice/SpeechRecogniser.h"

#include <QObject>

namespace kiv::voice {

/// Turns speech into text until it is stopped: while an utterance is spoken its words so far, then
/// the finished utterance, then the next request over the same open microphone. Lives on the main
/// thread.
class DictationEngine : public QObject {
public:
    /// `audio` is kept for the engine's life. Without a service nothing can be recognised.
    explicit DictationEngine(std::unique_ptr<AudioInput> audio, QObject *parent = nullptr);

    /// `service` outlives the engine.
    void setService(SpeechService *service) { m_service = service; }

    /// What the engine tells its owner; each may be missing.
    std::function<void(const QString &text)> onInterim; ///< words so far; empty clears them
    std::function<void(const QString &text)> onFinal;   ///< an utterance, never empty
    std::function<void(const QString &text)> onError;   ///< a line for the person

    bool running() const { return m_running; }

    /// Asks whether speech may be recognised and begins when it may.
    void start();
    /// Whatever comes later of what was said is dropped, an answer to start() as well.
    void stop();

private:
    void beginRunning();
    void startRequestCycle();
    void finishTask();
    bool openAudio();
    void take(const SpeechResult &result);
    void take(const SpeechError &error);
    void fail(const QString &text);
    static void tell(const std::function<void(const QString &)> &callback, const QString &text);

    SpeechService *m_service = nullptr;
    std::unique_ptr<AudioInput> m_audio;
    std::unique_ptr<SpeechRecogniser> m_recogniser;
    std::unique_ptr<SpeechTask> m_task; ///< the request of the current cycle
    bool m_running = false;
    int m_start = 0; ///< counts starts and stops: an answer to an earlier start is dropped
};

} // namespace kiv::voice
