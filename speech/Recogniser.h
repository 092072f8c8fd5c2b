#pragma once

#include "speech/ModelFiles.h"
#include "speech/VoiceActivity.h"

#include <memory>
#include <vector>

struct SherpaOnnxOfflineRecognizer;

namespace kiv::speech {

/// The recogniser's library and its models, loaded.
class Recogniser {
public:
    /// Throws ModelError when the library or a model cannot be loaded.
    explicit Recogniser(const ModelFiles &files);
    ~Recogniser();

    /// The words in `samples`, "" when there are none.
    QString read(const std::vector<float> &samples) const;
    /// Not to outlive this.
    std::unique_ptr<VoiceActivity> voiceActivity() const;

private:
    struct Library;
    struct Silero;
    std::unique_ptr<Library> m_library;
    QString m_voice;
    const SherpaOnnxOfflineRecognizer *m_recogniser = nullptr;
};

} // namespace kiv::speech
