#pragma once

#include <QString>

#include <exception>

namespace kiv::voice {

/// Why the voice engine cannot do what it was asked for.
class VoiceError : public std::exception {
public:
    enum class Kind { ConnectFailed, NotReady, SdkLoadFailed, ConnectTimeout };

    explicit VoiceError(Kind kind, const QString &text = {});
    /// `text` is the voice client's own word for what went wrong; it may have none.
    static VoiceError connectFailed(const QString &text) {
        return VoiceError(Kind::ConnectFailed, text);
    }

    Kind kind() const { return m_kind; }
    /// The text for the person.
    QString errorDescription() const { return QString::fromUtf8(m_what); }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    Kind m_kind;
    QByteArray m_what;
};

} // namespace kiv::voice
