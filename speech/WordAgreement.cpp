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

/// How many first words are the same.
qsizetype agreement(const QStringList &a, const QStringList &b) {
    return std::ranges::mismatch(a, b, {}, bare, bare).in1 - a.begin();
}

} // namespace

std::optional<QString> WordAgreement::add(const QString &reading) {
    const QStringList words = reading.simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    m_lastReading = reading;
    qsizetype agreed = 0;
    for (const QStringList &before : std::as_const(m_before))
        agreed = std::max(agreed, agreement(words, before));
    if (agreed == 0 && m_shown.isEmpty() && m_before.size() == 2)
        agreed = words.size() - 1;
    m_before.append(words);
    if (m_before.size() > 2)
        m_before.removeFirst();
    if (agreed < m_shown.size() || agreed == 0)
        return {};
    const QStringList show = words.first(agreed);
    if (show == m_shown)
        return {};
    m_shown = show;
    return show.join(u' ');
}

} // namespace kiv::speech
