#include "text/FoldedText.h"

#include <QStringMatcher>

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>

namespace kiv::text {

namespace {

constexpr QChar dotlessI = u'\u0131';
constexpr QChar dottedI = u'\u0130';

/// Without case as Unicode has it in full: a letter can become several.
QString caseFolded(const QString &text) {
    const auto *from = reinterpret_cast<const UChar *>(text.utf16());
    const auto length = static_cast<int32_t>(text.size());
    QString folded(text.size(), Qt::Uninitialized);
    UErrorCode error = U_ZERO_ERROR;
    const auto fold = [&] {
        return u_strFoldCase(reinterpret_cast<UChar *>(folded.data()),
                             static_cast<int32_t>(folded.size()), from, length, U_FOLD_CASE_DEFAULT,
                             &error);
    };
    const int32_t needed = fold();
    folded.resize(needed);
    if (error == U_BUFFER_OVERFLOW_ERROR) {
        error = U_ZERO_ERROR;
        fold();
    }
    return folded;
}

bool isMark(QChar c) {
    return c.unicode() >= 0x300 && c.isMark();
}

/// What stands for a unit whose folding is as long as it is.
QChar plain(QChar c) {
    if (c == dotlessI)
        return u'i';
    return c.isSpace() && c != u'\n' ? QChar(u' ') : c;
}

/// Whether folding keeps every unit at its place.
bool isInPlace(const QString &text, const QString &folded) {
    return text.size() == folded.size() && std::none_of(text.begin(), text.end(), [](QChar c) {
               return c == dottedI || isMark(c);
           });
}

/// Behind the letter that begins at `start`: a character and the marks on it.
qsizetype letterEnd(const QString &text, qsizetype start) {
    const auto isPair = [&](qsizetype at) {
        return text.at(at).isHighSurrogate() && at + 1 < text.size() &&
               text.at(at + 1).isLowSurrogate();
    };
    qsizetype end = start + (isPair(start) ? 2 : 1);
    while (end < text.size() && isMark(text.at(end)))
        ++end;
    return end;
}

} // namespace

FoldedText::FoldedText(const QString &text) : m_folded(caseFolded(text)) {
    if (isInPlace(text, m_folded)) {
        std::ranges::transform(m_folded, m_folded.begin(), plain);
        return;
    }
    m_folded.clear();
    m_folded.reserve(text.size());
    m_origins.reserve(text.size() + 1);
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = letterEnd(text, at);
        append(QStringView(text).sliced(at, end - at), at);
        at = end;
    }
    m_origins.append(text.size());
}

void FoldedText::append(QStringView letter, qsizetype origin) {
    const QChar first = letter.front();
    if (letter.size() == 1 && first.unicode() < 0x80) {
        m_folded += plain(first.toCaseFolded());
    } else if (first == dottedI) {
        m_folded += u'i' + letter.sliced(1).toString();
    } else {
        const QString folded =
            caseFolded(letter.toString().normalized(QString::NormalizationForm_C));
        for (const QChar c : folded)
            m_folded += plain(c);
    }
    m_origins.resize(m_folded.size(), origin);
}

bool FoldedText::isLetterStart(qsizetype at) const {
    return m_origins.isEmpty() || at == 0 || m_origins.at(at) != m_origins.at(at - 1);
}

QList<FoldedText::Range> FoldedText::find(const FoldedText &words) const {
    QList<Range> found;
    if (words.isEmpty())
        return found;
    const QStringMatcher matcher(words.m_folded);
    for (qsizetype at = matcher.indexIn(m_folded); at >= 0;) {
        const qsizetype end = at + words.m_folded.size();
        const bool isWhole = isLetterStart(at) && isLetterStart(end);
        if (isWhole)
            found.append({originOf(at), originOf(end) - originOf(at)});
        at = matcher.indexIn(m_folded, isWhole ? end : at + 1);
    }
    return found;
}

} // namespace kiv::text
