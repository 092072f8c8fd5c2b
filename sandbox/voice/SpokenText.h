#pragma once

#include <QString>

namespace kiv::sandbox {

/// An answer as a person would say it: no blocks, tables, markup or links, a few sentences, and the
/// first figures of what would have been drawn. Never empty for an answer that is not.
QString spokenText(const QString &answer);

/// Signs and abbreviations as words, so that a voice does not stumble over them.
QString spokenFigures(const QString &text);

/// Whether an answer holds what is looked at rather than listened to: a drawing, a table, a link.
bool isLaidOut(const QString &answer);

} // namespace kiv::sandbox
