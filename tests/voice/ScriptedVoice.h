#pragma once

#include "voice/AudioDevices.h"
#include "voice/SpeechRecogniser.h"

namespace kiv::test {

/// Recognises what the test says.
class ScriptedSpeech : public voice::SpeechService {
public:
    bool knowsLocale = true;
    bool hasDefault = true;
    bool available = true;
    bool onDevice = true;

    void requestAuthorisation(std::function<void(voice::SpeechAuthorisation)> answer) override;
    std::unique_ptr<voice::SpeechRecogniser> recogniser(const QLocale &locale) override;
    std::unique_ptr<voice::SpeechRecogniser> defaultRecogniser() override;

    /// Answers the question for permission.
    void
    authorise(voice::SpeechAuthorisation answer = voice::SpeechAuthorisation::Authorised) const;
    /// Results of the newest request, also after it was given up.
    void interim(const QString &text) const { m_handler(voice::SpeechResult{text, false}); }
    void finish(const QString &text) const;
    void fail(int code, const QString &text = {}) const;

    int requests = 0;         ///< that were begun
    int open = 0;             ///< that are under way
    bool wasOnDevice = false; ///< what the newest request required
    QByteArray heard;         ///< by the newest request

private:
    friend class ScriptedTask;
    friend class ScriptedRecogniser;

    std::function<void(voice::SpeechAuthorisation)> m_authorisation;
    voice::SpeechHandler m_handler;
};

/// Microphones that hear what the test says: "desk" and "headset".
class ScriptedMicrophones : public voice::AudioDevices {
public:
    QList<voice::AudioDevice> there{{QStringLiteral("desk"), QStringLiteral("Desk microphone")},
                                    {QStringLiteral("headset"), QStringLiteral("Headset")}};
    bool opens = true;
    double level = 0.5;

    QList<voice::AudioDevice> inputs() override {
        ++looks;
        return there;
    }
    std::unique_ptr<voice::AudioInput> input(const QString &id) override;

    void hear(const QByteArray &samples) const { m_samples(samples); }
    void unplug() const;

    int looks = 0;
    QString openId; ///< of the device that is open; null for none
    int starts = 0;

private:
    friend class ScriptedInput;

    voice::AudioInput::Samples m_samples;
    voice::AudioInput::Lost m_lost;
};

} // namespace kiv::test
