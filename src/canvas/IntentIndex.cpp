#include "canvas/IntentIndex.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype keyLength = 2;

quint32 keyAt(QStringView text, qsizetype at) {
    return static_cast<quint32>(text.at(at).unicode()) << 16 | text.at(at + 1).unicode();
}

/// The letters that an alternative begins with in any case; one that may be left out is none.
QString startOf(const QString &alternative) {
    qsizetype end = 0;
    while (end < alternative.size() && !u"([?*+.\\|^$"_s.contains(alternative.at(end)))
        ++end;
    if (end < alternative.size() && u"?*"_s.contains(alternative.at(end)))
        --end;
    return alternative.first(end).toCaseFolded();
}

/// Letters that stand for two in any case, such as ß: patterns find them, folding keeps them.
bool isLetterPair(QChar c) {
    const char16_t code = c.unicode();
    return code == 0xdf || code == 0x149 || code == 0x1f0 || (code >= 0x1e96 && code <= 0x1e9e) ||
           (code >= 0xfb00 && code <= 0xfb06);
}

} // namespace

void IntentIndex::add(std::size_t rule, const QString &alternative) {
    if (rule >= m_always.size())
        m_always.resize(rule + 1);
    const QString start = startOf(alternative);
    if (start.size() < keyLength)
        m_always[rule] = true;
    else
        m_starts[keyAt(start, 0)].push_back({start, rule});
}

std::vector<bool> IntentIndex::candidates(const QString &text) const {
    if (std::any_of(text.begin(), text.end(), isLetterPair))
        return std::vector<bool>(m_always.size(), true);
    std::vector<bool> result = m_always;
    const QString folded = text.toCaseFolded();
    for (qsizetype at = 0; at + keyLength <= folded.size(); ++at) {
        const auto starts = m_starts.constFind(keyAt(folded, at));
        if (starts == m_starts.cend())
            continue;
        for (const Start &start : *starts) {
            if (!result[start.rule] && QStringView(folded).sliced(at).startsWith(start.letters))
                result[start.rule] = true;
        }
    }
    return result;
}

} // namespace kiv::canvas
