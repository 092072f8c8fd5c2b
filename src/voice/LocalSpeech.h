#pragma once

#include "voice/SpeechProcess.h"
#include "voice/SpeechRecogniser.h"

#include <QObject>

namespace kiv::voice {

/// Recognition on this computer, in English. One program serves one request after the other without
/// a gap: the sound that is said between the final result of a request and the start of the next
/// belongs to the next. The program is started by the first request and ends a minute after the
/// last.
class LocalSpeech : public QObject, public SpeechService {
    Q_OBJECT
public:
    explicit LocalSpeech(Clock &clock,
                         const SpeechProcess::Program &program = SpeechProcess::installed());
    ~LocalSpeech() override;

    void requestAuthorisation(std::function<void(SpeechAuthorisation)> answer) override;
    std::unique_ptr<SpeechRecogniser> recogniser(const QLocale &locale) override;
    std::unique_ptr<SpeechRecogniser> defaultRecogniser() override;

private:
    class Recogniser;
    class Task;

    std::unique_ptr<SpeechTask> startTask(SpeechHandler handler);
    void append(Task *task, const QByteArray &samples);
    void endAudio(Task *task);
    void leave(Task *task);

    void giveUp(const Task &task);
    void forget();
    void reset();

    void onResult(const SpeechResult &result);
    void onEnded();
    void onFailed(const QString &why);
    static void collect(Task &task, const SpeechResult &result);
    void deliver();

    Clock &m_clock;
    SpeechProcess m_process;
    Task *m_task = nullptr;     ///< the latest request, while its owner keeps it
    QList<Task *> m_replaced;   ///< requests that have to be told that another took their place
    QList<SpeechResult> m_held; ///< for the next request
    bool m_heard = false;       ///< the program has sound that is of use
    int m_staleEnds = 0;        ///< results count again after so many more `ended`
    Clock::Timer m_handover;
    Clock::Timer m_rest;
};

} // namespace kiv::voice
