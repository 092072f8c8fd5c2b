#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace kiv {

/// The time in UTC that a text gives in ISO 8601, with or without fractional seconds; one without a
/// zone is UTC. Nothing for an absent text and for one that is no time.
std::optional<QDateTime> parseDate(const std::optional<QString> &text);

} // namespace kiv
