#pragma once

#include "store/Enums.h"

#include <QString>

#include <optional>

namespace kiv::store {

/// A chat as a link of the desktop names it: `kiv://chat/kiv`, `kiv://chat/project/SLUG` or
/// `kiv://chat/agent/ID`.
struct ChatLink {
    ScopeKind kind = ScopeKind::Kiv;
    QString id; ///< the agent's id or the project's slug; empty for KIV

    /// Nothing for everything else: any program and any page can make somebody follow a link.
    static std::optional<ChatLink> parse(const QString &link);
    QString toString() const;

    friend bool operator==(const ChatLink &, const ChatLink &) = default;
};

} // namespace kiv::store
