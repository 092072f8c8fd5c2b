#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <functional>
#include <memory>
#include <variant>

namespace kiv::voice {

enum class SpeechAuthorisation { Authorised, Denied, Restricted, NotDetermined };

/// The best transcription so far of what was said in a request.
struct SpeechResult {
    QString text;
    bool final = false;
};

/// Why a request gives no more results. The text is for the person.
struct SpeechError {
    /// The request heard no speech.
    static constexpr int noSpeech = 216;
    /// The request has ended.
    static constexpr int requestEnded = 301;

    int code = 0;
    QString text;
};

/// One request: sound in, results out. Destroying it cancels it: the handler is not called again.
class SpeechTask {
public:
    virtual ~SpeechTask() = default;
    /// Samples are signed 16 bit, 16 kHz, mono, in the host's byte order.
    virtual void append(const QByteArray &samples) = 0;
    virtual void endAudio() = 0;
};

/// May destroy the task that calls it: a task calls a copy and touches nothing of itself after it.
using SpeechHandler = std::function<void(const std::variant<SpeechResult, SpeechError> &)>;

/// A recogniser of one locale. Results are handed over on the thread that started the task, never
/// within the call that caused them.
class SpeechRecogniser {
public:
    virtual ~SpeechRecogniser() = default;
    virtual bool available() const = 0;
    virtual bool supportsOnDevice() const = 0;
    /// Requests with partial results; they never leave this computer when `onDevice` is set.
    virtual std::unique_ptr<SpeechTask> startTask(bool onDevice, SpeechHandler handler) = 0;
};

/// What this computer has for recognising speech.
class SpeechService {
public:
    virtual ~SpeechService() = default;
    /// Answers on the calling thread, after this call.
    virtual void requestAuthorisation(std::function<void(SpeechAuthorisation)> answer) = 0;
    /// Null when there is none for this locale.
    virtual std::unique_ptr<SpeechRecogniser> recogniser(const QLocale &locale) = 0;
    /// Of the locale that the service prefers; null when there is none at all.
    virtual std::unique_ptr<SpeechRecogniser> defaultRecogniser() = 0;
};

} // namespace kiv::voice
