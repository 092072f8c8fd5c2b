#include "store/SpokenWords.h"

namespace kiv::store {

using namespace Qt::StringLiterals;

namespace {

bool isStraightQuote(QChar c) {
    return c == u'"' || c == u'\'';
}

/// Whether the text goes on without a blank after the character at `at`.
bool joinsNext(const QString &text, qsizetype at) {
    if (at < 0)
        return true;
    const QChar c = text.at(at);
    if (c.isSpace())
        return true;
    switch (c.category()) {
    case QChar::Punctuation_Open:
    case QChar::Punctuation_InitialQuote:
        return true;
    default:
        // A straight quote opens where a word could begin.
        return isStraightQuote(c) && joinsNext(text, at - 1);
    }
}

/// Whether this character follows a word without a blank.
bool joinsPrevious(QChar c) {
    switch (c.category()) {
    case QChar::Punctuation_Close:
    case QChar::Punctuation_FinalQuote:
        return true;
    case QChar::Punctuation_Other:
        return u".,;:!?…%"_s.contains(c) || isStraightQuote(c);
    default:
        return c.isSpace();
    }
}

} // namespace

QString spokenWords(const QString &words, const QString &text, qsizetype at) {
    const QString spoken = words.trimmed();
    if (spoken.isEmpty())
        return spoken;
    const bool needsBefore = !joinsNext(text, at - 1) && !joinsPrevious(spoken.front());
    const bool needsAfter = at < text.size() && !joinsPrevious(text.at(at));
    return (needsBefore ? u" "_s : QString()) + spoken + (needsAfter ? u" "_s : QString());
}

} // namespace kiv::store
