#include "voice/DictationEngine.h"

#include <QPointer>

namespace kiv::voice {

using namespace Qt::StringLiterals;

namespace {

const QString notAllowed = u"Speech recognition is not allowed in System Settings → Privacy."_s;
const QString notNow = u"Speech recognition is not available right now."_s;
const QString noMicrophone = u"Microphone is not available."_s;

} // namespace

DictationEngine::DictationEngine(std::unique_ptr<AudioInput> audio, QObject *parent)
    : QObject(parent), m_audio(std::move(audio)) {}

void DictationEngine::tell(const std::function<void(const QString &)> &callback,
                           const QString &text) {
    if (callback)
        callback(text);
}

void DictationEngine::start() {
    const int start = ++m_start;
    if (!m_service) {
        tell(onError, notNow);
        return;
    }
    m_service->requestAuthorisation(
        [self = QPointer(this), start](SpeechAuthorisation authorisation) {
            if (!self || self->m_start != start)
                return;
            switch (authorisation) {
            case SpeechAuthorisation::Authorised:
                return self->beginRunning();
            case SpeechAuthorisation::Denied:
            case SpeechAuthorisation::Restricted:
                return tell(self->onError, notAllowed);
            case SpeechAuthorisation::NotDetermined:
                return tell(self->onError, notNow);
            }
        });
}

void DictationEngine::beginRunning() {
    const QLocale locale;
    std::unique_ptr<SpeechRecogniser> recogniser = m_service->recogniser(locale);
    if (!recogniser)
        recogniser = m_service->defaultRecogniser();
    if (!recogniser || !recogniser->available()) {
        tell(onError, u"Speech recognition is not available for "_s + locale.name() + u"."_s);
        return;
    }
    m_recogniser = std::move(recogniser);
    m_running = true;
    startRequestCycle();
}

void DictationEngine::startRequestCycle() {
    if (!m_running || !m_recogniser)
        return;
    m_task.reset();
    if (!m_audio->running() && !openAudio()) {
        fail(noMicrophone);
        return;
    }
    m_task = m_recogniser->startTask(
        m_recogniser->supportsOnDevice(),
        [this](const std::variant<SpeechResult, SpeechError> &outcome) {
            if (m_running)
                std::visit([this](const auto &news) { take(news); }, outcome);
        });
}

bool DictationEngine::openAudio() {
    try {
        // The sound always goes to the request of the cycle that is current when it comes.
        m_audio->start(
            [this](const QByteArray &samples) {
                if (m_task)
                    m_task->append(samples);
            },
            [this](const QString &reason) {
                qWarning("The microphone is gone: %s", qUtf8Printable(reason));
                if (m_running)
                    fail(noMicrophone);
            });
        return true;
    } catch (const AudioError &error) {
        qWarning("The microphone cannot be opened: %s", error.what());
        return false;
    }
}

void DictationEngine::take(const SpeechResult &result) {
    if (!result.final) {
        tell(onInterim, result.text);
        return;
    }
    if (!result.text.isEmpty())
        tell(onFinal, result.text);
    tell(onInterim, QString());
    startRequestCycle();
}

void DictationEngine::take(const SpeechError &error) {
    if (error.code == SpeechError::noSpeech || error.code == SpeechError::requestEnded)
        startRequestCycle();
    else
        fail(error.text);
}

void DictationEngine::fail(const QString &text) {
    tell(onError, text);
    stop();
}

void DictationEngine::finishTask() {
    if (m_task)
        m_task->endAudio();
    m_task.reset();
}

void DictationEngine::stop() {
    ++m_start;
    m_running = false;
    finishTask();
    m_audio->stop();
    tell(onInterim, QString());
}

} // namespace kiv::voice
