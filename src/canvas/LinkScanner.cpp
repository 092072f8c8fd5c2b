#include "canvas/LinkScanner.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// The length of http:// or https:// at the start of `text`, else 0.
qsizetype schemeLength(QStringView text) {
    for (const QStringView scheme : {u"https://"_s, u"http://"_s}) {
        if (text.startsWith(scheme, Qt::CaseInsensitive))
            return scheme.size();
    }
    return 0;
}

bool isHostCharacter(QChar c) {
    const char16_t lower = c.toLower().unicode();
    return (lower >= u'a' && lower <= u'z') || (lower >= u'0' && lower <= u'9') || lower == u'.' ||
           lower == u'-';
}

qsizetype sectionLength(QStringView path) {
    for (const QStringView section :
         {u"/project/"_s, u"/agent-profile/"_s, u"/dashboard/"_s, u"/team/"_s, u"/p/"_s}) {
        if (path.startsWith(section, Qt::CaseInsensitive))
            return section.size();
    }
    return 0;
}

} // namespace

std::optional<QStringView> LinkScanner::next() {
    for (; m_at < m_text.size(); ++m_at) {
        const QChar c = m_text.at(m_at);
        std::optional<QStringView> target;
        qsizetype closing = 0;
        if (c == u'[') {
            target = markdownTarget(m_at);
            closing = 1;
        } else if (c.isSpace()) {
            target = bareTarget(m_at + 1);
        } else if (m_at == 0) {
            target = bareTarget(0);
        }
        if (target) {
            m_at = target->cend() - m_text.cbegin() + closing;
            return target;
        }
    }
    return std::nullopt;
}

std::optional<QStringView> LinkScanner::markdownTarget(qsizetype open) {
    const qsizetype close = bracketFrom(open + 1);
    if (close + 2 >= m_text.size() || m_text.at(close + 1) != u'(')
        return std::nullopt;
    const qsizetype start = close + 2;
    const QStringView rest = m_text.sliced(start);
    const qsizetype lead = rest.startsWith(u'/') ? 1 : schemeLength(rest);
    const qsizetype end = stopFrom(start);
    if (lead == 0 || end <= start + lead || end == m_text.size() || m_text.at(end) != u')')
        return std::nullopt;
    return m_text.sliced(start, end - start);
}

std::optional<QStringView> LinkScanner::bareTarget(qsizetype start) {
    const QStringView rest = m_text.sliced(start);
    const qsizetype scheme = schemeLength(rest);
    if (scheme == 0)
        return std::nullopt;
    qsizetype at = scheme;
    while (at < rest.size() && isHostCharacter(rest.at(at)))
        ++at;
    const qsizetype section = sectionLength(rest.sliced(at));
    if (at == scheme || section == 0)
        return std::nullopt;
    const qsizetype body = at + section;
    qsizetype end = body;
    while (end < rest.size() && !rest.at(end).isSpace() && rest.at(end) != u'<' &&
           rest.at(end) != u')')
        ++end;
    if (end == body)
        return std::nullopt;
    return rest.first(end);
}

/// The next closing bracket at or after `from`, the text's size when there is none.
qsizetype LinkScanner::bracketFrom(qsizetype from) {
    if (m_bracket < from) {
        const qsizetype found = m_text.indexOf(u']', from);
        m_bracket = found < 0 ? m_text.size() : found;
    }
    return m_bracket;
}

/// The next white space or closing parenthesis at or after `from`, the text's size without one.
qsizetype LinkScanner::stopFrom(qsizetype from) {
    if (m_stop < from) {
        const auto stops = [](QChar c) { return c == u')' || c.isSpace(); };
        m_stop = std::find_if(m_text.cbegin() + from, m_text.cend(), stops) - m_text.cbegin();
    }
    return m_stop;
}

} // namespace kiv::canvas
