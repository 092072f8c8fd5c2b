#pragma once

#include <QByteArray>

#include <functional>

namespace kiv {

/// The one secret of this program in the desktop's key chain. An answer never comes within the call
/// that asks for it; it may come late (somebody has to unlock the chain first) or never.
class SecretStore {
public:
    enum class Outcome { Done, NotFound, Failed };
    /// `secret` is what was read; empty otherwise.
    using Answer = std::function<void(Outcome outcome, const QByteArray &secret)>;

    virtual ~SecretStore() = default;
    virtual void read(Answer answer) = 0;
    virtual void write(const QByteArray &secret, Answer answer) = 0;
    virtual void remove() = 0;
};

} // namespace kiv
