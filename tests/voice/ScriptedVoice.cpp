#include "ScriptedVoice.h"

#include <utility>

namespace kiv::test {

using namespace voice;

class ScriptedTask : public SpeechTask {
public:
    ScriptedTask(ScriptedSpeech &speech, SpeechHandler handler) : m_speech(speech) {
        m_speech.m_handler = std::move(handler);
        m_speech.heard.clear();
        ++m_speech.requests;
        ++m_speech.open;
    }
    ~ScriptedTask() override { --m_speech.open; }

    void append(const QByteArray &samples) override { m_speech.heard += samples; }
    void endAudio() override {}

private:
    ScriptedSpeech &m_speech;
};

class ScriptedRecogniser : public SpeechRecogniser {
public:
    explicit ScriptedRecogniser(ScriptedSpeech &speech) : m_speech(speech) {}

    bool available() const override { return m_speech.available; }
    bool supportsOnDevice() const override { return m_speech.onDevice; }
    std::unique_ptr<SpeechTask> startTask(bool onDevice, SpeechHandler handler) override {
        m_speech.wasOnDevice = onDevice;
        return std::make_unique<ScriptedTask>(m_speech, std::move(handler));
    }

private:
    ScriptedSpeech &m_speech;
};

class ScriptedInput : public AudioInput {
public:
    ScriptedInput(ScriptedMicrophones &all, QString id) : m_all(all), m_id(std::move(id)) {}
    ~ScriptedInput() override { stop(); }

    void start(Samples samples, Lost lost) override {
        if (!m_all.opens)
            throw AudioError("busy");
        m_isOpen = true;
        ++m_all.starts;
        m_all.openId = m_id;
        m_all.m_samples = std::move(samples);
        m_all.m_lost = std::move(lost);
    }
    void stop() override {
        if (std::exchange(m_isOpen, false))
            m_all.openId = QString();
    }
    bool running() const override { return m_isOpen; }
    double level() const override { return m_all.level; }

private:
    ScriptedMicrophones &m_all;
    QString m_id;
    bool m_isOpen = false;
};

void ScriptedSpeech::requestAuthorisation(std::function<void(SpeechAuthorisation)> answer) {
    m_authorisation = std::move(answer);
}

std::unique_ptr<SpeechRecogniser> ScriptedSpeech::recogniser(const QLocale &) {
    return knowsLocale ? std::make_unique<ScriptedRecogniser>(*this) : nullptr;
}

std::unique_ptr<SpeechRecogniser> ScriptedSpeech::defaultRecogniser() {
    return hasDefault ? std::make_unique<ScriptedRecogniser>(*this) : nullptr;
}

void ScriptedSpeech::authorise(SpeechAuthorisation answer) const {
    m_authorisation(answer);
}

void ScriptedSpeech::finish(const QString &text) const {
    const SpeechHandler handler = m_handler; // the next request brings its own
    handler(SpeechResult{text, true});
}

void ScriptedSpeech::fail(int code, const QString &text) const {
    const SpeechHandler handler = m_handler;
    handler(SpeechError{code, text});
}

std::unique_ptr<AudioInput> ScriptedMicrophones::input(const QString &id) {
    return std::make_unique<ScriptedInput>(*this, id.isEmpty() ? QStringLiteral("desk") : id);
}

void ScriptedMicrophones::unplug() const {
    const AudioInput::Lost lost = m_lost; // which may close the input
    lost(QStringLiteral("unplugged"));
}

} // namespace kiv::test
