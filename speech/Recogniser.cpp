#include "speech/Recogniser.h"

#include <QFile>
#include <QLibrary>

#include <sherpa-onnx/c-api.h>

#include <cstddef>

namespace kiv::speech {

using namespace Qt::StringLiterals;

// The library takes these by their layout and cannot tell another one.
using Config = SherpaOnnxOfflineRecognizerConfig;
static_assert(sizeof(Config) == 608);
static_assert(sizeof(SherpaOnnxOfflineModelConfig) == 504);
static_assert(sizeof(SherpaOnnxVadModelConfig) == 88);
static_assert(offsetof(Config, model_config.moonshine.encoder) == 192);
static_assert(offsetof(Config, model_config.moonshine.merged_decoder) == 216);
static_assert(offsetof(Config, decoding_method) == 528);

/// The functions of the library that are used, by their own names.
struct Recogniser::Library {
    explicit Library(const QString &path) : library(path) {
        if (!library.load())
            throw ModelError(ModelError::Unusable, library.errorString());
        take(createRecogniser, "SherpaOnnxCreateOfflineRecognizer");
        take(destroyRecogniser, "SherpaOnnxDestroyOfflineRecognizer");
        take(createStream, "SherpaOnnxCreateOfflineStream");
        take(destroyStream, "SherpaOnnxDestroyOfflineStream");
        take(acceptSamples, "SherpaOnnxAcceptWaveformOffline");
        take(decode, "SherpaOnnxDecodeOfflineStream");
        take(result, "SherpaOnnxGetOfflineStreamResult");
        take(destroyResult, "SherpaOnnxDestroyOfflineRecognizerResult");
        take(createActivity, "SherpaOnnxCreateVoiceActivityDetector");
        take(destroyActivity, "SherpaOnnxDestroyVoiceActivityDetector");
        take(activityAccept, "SherpaOnnxVoiceActivityDetectorAcceptWaveform");
        take(activityDetected, "SherpaOnnxVoiceActivityDetectorDetected");
        take(activityEmpty, "SherpaOnnxVoiceActivityDetectorEmpty");
        take(activityFront, "SherpaOnnxVoiceActivityDetectorFront");
        take(activityPop, "SherpaOnnxVoiceActivityDetectorPop");
        take(activityReset, "SherpaOnnxVoiceActivityDetectorReset");
        take(destroySegment, "SherpaOnnxDestroySpeechSegment");
    }

    QLibrary library;
    decltype(&SherpaOnnxCreateOfflineRecognizer) createRecogniser;
    decltype(&SherpaOnnxDestroyOfflineRecognizer) destroyRecogniser;
    decltype(&SherpaOnnxCreateOfflineStream) createStream;
    decltype(&SherpaOnnxDestroyOfflineStream) destroyStream;
    decltype(&SherpaOnnxAcceptWaveformOffline) acceptSamples;
    decltype(&SherpaOnnxDecodeOfflineStream) decode;
    decltype(&SherpaOnnxGetOfflineStreamResult) result;
    decltype(&SherpaOnnxDestroyOfflineRecognizerResult) destroyResult;
    decltype(&SherpaOnnxCreateVoiceActivityDetector) createActivity;
    decltype(&SherpaOnnxDestroyVoiceActivityDetector) destroyActivity;
    decltype(&SherpaOnnxVoiceActivityDetectorAcceptWaveform) activityAccept;
    decltype(&SherpaOnnxVoiceActivityDetectorDetected) activityDetected;
    decltype(&SherpaOnnxVoiceActivityDetectorEmpty) activityEmpty;
    decltype(&SherpaOnnxVoiceActivityDetectorFront) activityFront;
    decltype(&SherpaOnnxVoiceActivityDetectorPop) activityPop;
    decltype(&SherpaOnnxVoiceActivityDetectorReset) activityReset;
    decltype(&SherpaOnnxDestroySpeechSegment) destroySegment;

private:
    template <typename Function>
    void take(Function &function, const char *name) {
        function = reinterpret_cast<Function>(library.resolve(name));
        if (!function)
            throw ModelError(ModelError::Unusable, library.errorString());
    }
};

/// Voice activity by the Silero model.
struct Recogniser::Silero : VoiceActivity {
    Silero(const Library &functions, const QString &model) : m_library(functions) {
        const QByteArray path = QFile::encodeName(model);
        SherpaOnnxVadModelConfig config{};
        config.silero_vad.model = path.constData();
        config.silero_vad.threshold = 0.5F;
        config.silero_vad.min_silence_duration = seconds(leastSilence);
        config.silero_vad.min_speech_duration = seconds(leastSpeech);
        config.silero_vad.window_size = window;
        // From here on a breath is enough to end an utterance.
        config.silero_vad.max_speech_duration = 15;
        config.sample_rate = sampleRate;
        config.num_threads = 1;
        config.provider = "cpu";
        constexpr float bufferSeconds = 60;
        m_activity = m_library.createActivity(&config, bufferSeconds);
        if (!m_activity)
            throw ModelError(ModelError::Unusable, u"%1 cannot be loaded."_s.arg(model));
    }
    ~Silero() override { m_library.destroyActivity(m_activity); }

    void accept(std::span<const float> samples) override {
        m_library.activityAccept(m_activity, samples.data(), static_cast<int>(samples.size()));
    }
    bool speaking() const override { return m_library.activityDetected(m_activity); }
    std::optional<Stretch> takeEnded() override {
        if (m_library.activityEmpty(m_activity))
            return {};
        const SherpaOnnxSpeechSegment *segment = m_library.activityFront(m_activity);
        const Stretch stretch{segment->start, segment->start + segment->n};
        m_library.destroySegment(segment);
        m_library.activityPop(m_activity);
        return stretch;
    }
    void restart() override { m_library.activityReset(m_activity); }

private:
    static constexpr float seconds(qint64 samples) {
        return static_cast<float>(samples) / static_cast<float>(sampleRate);
    }

    const Library &m_library;
    const SherpaOnnxVoiceActivityDetector *m_activity = nullptr;
};

Recogniser::Recogniser(const ModelFiles &files)
    : m_library(std::make_unique<Library>(files.library())), m_voice(files.voice()) {
    const QByteArray encoder = QFile::encodeName(files.encoder());
    const QByteArray decoder = QFile::encodeName(files.decoder());
    const QByteArray tokens = QFile::encodeName(files.tokens());
    Config config{};
    config.feat_config = {sampleRate, 80};
    config.model_config.moonshine.encoder = encoder.constData();
    config.model_config.moonshine.merged_decoder = decoder.constData();
    config.model_config.tokens = tokens.constData();
    config.model_config.num_threads = 1;
    config.model_config.provider = "cpu";
    config.decoding_method = "greedy_search";
    m_recogniser = m_library->createRecogniser(&config);
    if (!m_recogniser)
        throw ModelError(ModelError::Unusable, u"%1 cannot be loaded."_s.arg(files.encoder()));
}

Recogniser::~Recogniser() {
    m_library->destroyRecogniser(m_recogniser);
}

QString Recogniser::read(const std::vector<float> &samples) const {
    // The model fails on less than its first layers take together.
    if (samples.size() < samplesIn(100))
        return {};
    const SherpaOnnxOfflineStream *stream = m_library->createStream(m_recogniser);
    m_library->acceptSamples(stream, sampleRate, samples.data(), static_cast<int>(samples.size()));
    m_library->decode(m_recogniser, stream);
    const SherpaOnnxOfflineRecognizerResult *result = m_library->result(stream);
    const QString text = QString::fromUtf8(result->text).trimmed();
    m_library->destroyResult(result);
    m_library->destroyStream(stream);
    return text;
}

std::unique_ptr<VoiceActivity> Recogniser::voiceActivity() const {
    return std::make_unique<Silero>(*m_library, m_voice);
}

} // namespace kiv::speech
