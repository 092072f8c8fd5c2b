#pragma once

#include <QString>
#include <QStringView>

namespace kiv {

/// The first `count` characters of `text`, a character being what a person sees as one.
QString firstCharacters(const QString &text, qsizetype count);
/// The last `count` of them.
QString lastCharacters(const QString &text, qsizetype count);

/// How many characters a person sees in `text`.
qsizetype characterCount(const QString &text);

} // namespace kiv
