#pragma once

#include <QString>

namespace kiv::store {

/// Spoken words as they are put into `text` at `at`: with a blank to either side where one belongs
/// between two words.
QString spokenWords(const QString &words, const QString &text, qsizetype at);

} // namespace kiv::store
