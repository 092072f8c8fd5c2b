#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace kiv::sandbox {

/// Sound of a call: signed 16 bit, little endian, mono.
constexpr int callerRate = 16'000;
constexpr int bytesPerSample = 2;

/// What stands for a turn of which no word is known.
inline const QString wordless = QStringLiteral("…");

/// What an ear tells. Never called within Ear::hear().
struct EarHandlers {
    std::function<void()> began;                 ///< the caller has begun to speak
    std::function<void(const QString &)> said;   ///< the caller has finished; empty for a noise
    std::function<void(const QString &)> failed; ///< this ear hears nothing more, and why
};

/// Listens to the caller of one call.
class Ear {
public:
    virtual ~Ear() = default;
    virtual void hear(const QByteArray &samples) = 0;
    virtual QString name() const = 0;
};

} // namespace kiv::sandbox
