#include "canvas/ProseLines.h"

#include "base/Regex.h"
#include "canvas/TextCues.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// How many times `mark` stands at the start of `text`.
qsizetype runOf(QChar mark, QStringView text) {
    qsizetype length = 0;
    while (length < text.size() && text.at(length) == mark)
        ++length;
    return length;
}

/// Follows code fences from line to line.
class FenceState {
public:
    /// Whether this line is code or a fence.
    bool take(QStringView line) {
        const QStringView text = line.trimmed();
        const QChar mark = text.isEmpty() ? QChar() : text.front();
        const qsizetype length = mark == u'`' || mark == u'~' ? runOf(mark, text) : 0;
        constexpr qsizetype shortestFence = 3;
        if (m_length > 0) {
            if (mark == m_mark && length >= m_length && length == text.size())
                m_length = 0;
            return true;
        }
        const bool isInline = mark == u'`' && text.sliced(length).contains(u'`');
        if (length < shortestFence || isInline)
            return false;
        m_mark = mark;
        m_length = length;
        return true;
    }

private:
    QChar m_mark;
    qsizetype m_length = 0;
};

} // namespace

qsizetype ProseLine::indent() const {
    constexpr qsizetype tabWidth = 4;
    qsizetype width = 0;
    for (const QChar c : text) {
        if (c != u' ' && c != u'\t')
            break;
        width += c == u'\t' ? tabWidth : 1;
    }
    return width;
}

QList<ProseLine> proseLines(QStringView answer) {
    QList<ProseLine> lines;
    FenceState fence;
    qsizetype start = 0;
    while (start < answer.size()) {
        const qsizetype feed = answer.indexOf(u'\n', start);
        const qsizetype stop = feed < 0 ? answer.size() : feed;
        QStringView text = answer.sliced(start, stop - start);
        if (text.endsWith(u'\r'))
            text.chop(1);
        const qsizetype end = feed < 0 ? stop : stop + 1;
        lines.append({text, start, end, fence.take(text)});
        start = end;
    }
    return lines;
}

std::optional<QStringView> listItem(QStringView line) {
    const QStringView text = line.trimmed();
    qsizetype marker = 0;
    if (!text.isEmpty() && u"-*•"_s.contains(text.front())) {
        marker = 1;
    } else {
        while (marker < text.size() && text.at(marker).isDigit())
            ++marker;
        if (marker == 0 || marker == text.size() || !u".)"_s.contains(text.at(marker)))
            return std::nullopt;
        ++marker;
    }
    if (marker >= text.size() || !text.at(marker).isSpace())
        return std::nullopt;
    return text.sliced(marker).trimmed();
}

std::optional<QString> headingOver(const QList<ProseLine> &lines, qsizetype index) {
    constexpr qsizetype longest = 80;
    qsizetype above = index - 1;
    while (above >= 0 && lines.at(above).isBlank())
        --above;
    if (above < 0 || lines.at(above).isCode)
        return std::nullopt;
    QStringView text = lines.at(above).text.trimmed();
    if (text.size() > longest || listItem(text) || text.contains(u'|'))
        return std::nullopt;
    const qsizetype marks = runOf(u'#', text);
    const bool isHeading = marks > 0 && marks < text.size() && text.at(marks) == u' ';
    const bool isBold = text.size() > 4 && text.startsWith(u"**") && text.endsWith(u"**");
    const bool introduces = text.endsWith(u':') || text.endsWith(u":**");
    if (!isHeading && !isBold && !introduces)
        return std::nullopt;
    QString title = CanvasEngine::stripInline(isHeading ? text.sliced(marks) : text);
    if (title.endsWith(u':'))
        title.chop(1);
    return title.isEmpty() ? std::nullopt : std::optional(title.trimmed());
}

QString closedUp(const QString &text) {
    static const Regex blankLines(u"\\n{3,}");
    return blankLines.replaceAll(text, u"\n\n");
}

} // namespace kiv::canvas
