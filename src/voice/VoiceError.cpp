#include "voice/VoiceError.h"

namespace kiv::voice {

using namespace Qt::StringLiterals;

namespace {

QString describe(VoiceError::Kind kind, const QString &text) {
    switch (kind) {
    case VoiceError::Kind::ConnectFailed:
        return text.isEmpty() ? u"Could not connect the call"_s : text;
    case VoiceError::Kind::NotReady:
        return u"Voice engine is not ready"_s;
    case VoiceError::Kind::SdkLoadFailed:
        return u"Could not load the voice engine"_s;
    case VoiceError::Kind::ConnectTimeout:
        return u"voice connect timeout"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

VoiceError::VoiceError(Kind kind, const QString &text)
    : m_kind(kind), m_what(describe(kind, text).toUtf8()) {}

} // namespace kiv::voice
