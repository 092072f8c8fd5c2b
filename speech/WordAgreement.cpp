#include "speech/WordAgreement.h"

#include <algorithm>

namespace kiv::speech {

namespace {

/// A word without what may change while it stays the same: case and punctuation.
QString bare(const QString &word) {
    QString result;
    for (const QChar c : word) {
        if (c.isLetterOrNumber())
            result += c.toLower();
    }
    return result;
}

} // namespace

std::optional<QString> WordAgreement::add(const QString &reading) {
    const QStringList words = reading.simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    m_lastReading = reading;
    const auto same = std::ranges::mismatch(words, m_previous, {}, bare, bare);
    const qsizetype agreed = same.in1 - words.begin();
    m_previous = words;
    if (agreed < m_shown.size() || agreed == 0)
        return {};
    const QStringList show = words.first(agreed);
    if (show == m_shown)
        return {};
    m_shown = show;
    return show.join(u' ');
}

} // namespace kiv::speech
