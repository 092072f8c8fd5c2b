#include "text/MDParser.h"

#include <QRandomGenerator>

namespace kiv::text::MDParser {

namespace {

using namespace Qt::StringLiterals;

/// Steps through a text line by line. A line ends with a line feed, a carriage return before it
/// being part of the end.
class LineReader {
public:
    explicit LineReader(QStringView text) : m_text(text) { read(); }

    bool atEnd() const { return m_atEnd; }
    QStringView line() const { return m_line; }
    /// The current line without spaces around it.
    QStringView bare() const { return m_bare; }

    /// The line behind the current one; empty at the end.
    QStringView following() const {
        return m_next < 0 ? QStringView()
                          : withoutReturn(m_text.sliced(m_next, endOf(m_next) - m_next));
    }

    void advance() {
        if (m_next < 0)
            m_atEnd = true;
        else
            read();
    }

private:
    qsizetype endOf(qsizetype start) const {
        const qsizetype end = m_text.indexOf(u'\n', start);
        return end < 0 ? m_text.size() : end;
    }

    static QStringView withoutReturn(QStringView line) {
        return line.endsWith(u'\r') ? line.chopped(1) : line;
    }

    void read() {
        const qsizetype end = endOf(m_next);
        m_line = withoutReturn(m_text.sliced(m_next, end - m_next));
        m_bare = trimmed(m_line);
        m_next = end < m_text.size() ? end + 1 : -1;
    }

    QStringView m_text;
    QStringView m_line;
    QStringView m_bare;
    qsizetype m_next = 0; ///< where the following line starts; -1 when there is none
    bool m_atEnd = false;
};

/// What the first characters of a line make of it.
enum class Start { Blank, Fence, Quote, Pipe, Task, Bullet, Ordered, Heading, Rule, Words };

Start startOf(QStringView bare) {
    if (bare.isEmpty())
        return Start::Blank;
    switch (bare.front().unicode()) {
    case u'`':
        return bare.startsWith(u"```"_s) ? Start::Fence : Start::Words;
    case u'>':
        return Start::Quote;
    case u'|':
        return Start::Pipe;
    case u'#':
        return headingItem(bare) ? Start::Heading : Start::Words;
    case u'-':
    case u'*':
    case u'_':
    case u'•':
        if (bulletItem(bare))
            return taskItem(bare) ? Start::Task : Start::Bullet;
        return isRule(bare) ? Start::Rule : Start::Words;
    default:
        return bare.front() >= u'0' && bare.front() <= u'9' && orderedItem(bare) ? Start::Ordered
                                                                                 : Start::Words;
    }
}

/// A random identifier, cheap enough for a text of which every line is a block.
QUuid freshId() {
    QRandomGenerator &random = *QRandomGenerator::global();
    const quint64 high = random.generate64();
    const quint64 low = random.generate64();
    const auto byte = [low](int index) { return static_cast<uchar>(low >> (8 * index)); };
    return QUuid(static_cast<uint>(high), static_cast<ushort>(high >> 32),
                 static_cast<ushort>((high >> 48 & 0x0fff) | 0x4000), // version 4
                 static_cast<uchar>((byte(0) & 0x3f) | 0x80), byte(1), byte(2), byte(3), byte(4),
                 byte(5), byte(6), byte(7));
}

void appendLine(QString &text, bool first, QStringView line) {
    if (!first)
        text += u'\n';
    text += line;
}

MDBlock::Code readCode(LineReader &lines) {
    MDBlock::Code code;
    lines.advance();
    for (bool first = true; !lines.atEnd(); lines.advance(), first = false) {
        if (startOf(lines.bare()) == Start::Fence) {
            lines.advance();
            break;
        }
        appendLine(code.text, first, lines.line());
    }
    return code;
}

MDBlock::Quote readQuote(LineReader &lines) {
    MDBlock::Quote quote;
    for (; !lines.atEnd() && lines.bare().startsWith(u'>'); lines.advance())
        quote.lines.append(trimmed(lines.bare().sliced(1)).toString());
    return quote;
}

MDBlock::Table readTable(LineReader &lines) {
    MDBlock::Table table{cells(lines.bare()), {}};
    lines.advance();
    lines.advance(); // the rule
    for (; !lines.atEnd() && lines.bare().startsWith(u'|'); lines.advance()) {
        if (!isTableRule(lines.bare()))
            table.rows.append(cells(lines.bare()));
    }
    return table;
}

MDBlock::Tasks readTasks(LineReader &lines) {
    MDBlock::Tasks tasks;
    for (; !lines.atEnd(); lines.advance()) {
        const auto item = taskItem(lines.bare());
        if (!item)
            break;
        tasks.items.append({item->done, item->text.toString()});
    }
    return tasks;
}

MDBlock::Bullets readBullets(LineReader &lines) {
    MDBlock::Bullets bullets;
    for (; !lines.atEnd(); lines.advance()) {
        const auto item = bulletItem(lines.bare());
        if (!item || taskItem(lines.bare()))
            break;
        bullets.items.append(item->toString());
    }
    return bullets;
}

MDBlock::Ordered readOrdered(LineReader &lines) {
    MDBlock::Ordered ordered;
    for (; !lines.atEnd(); lines.advance()) {
        const auto item = orderedItem(lines.bare());
        if (!item)
            break;
        ordered.items.append({item->number, item->text.toString()});
    }
    return ordered;
}

MDBlock::Heading readHeading(LineReader &lines) {
    const HeadingItem item = *headingItem(lines.bare());
    MDBlock::Heading heading{item.level, item.text.toString()};
    lines.advance();
    return heading;
}

MDBlock::Paragraph readParagraph(LineReader &lines) {
    MDBlock::Paragraph paragraph;
    bool first = true;
    do {
        appendLine(paragraph.text, first, lines.bare());
        first = false;
        lines.advance();
    } while (!lines.atEnd() && startOf(lines.bare()) == Start::Words);
    return paragraph;
}

MDBlock::Kind readBlock(LineReader &lines, Start start) {
    switch (start) {
    case Start::Fence:
        return readCode(lines);
    case Start::Quote:
        return readQuote(lines);
    case Start::Pipe:
        if (isTableRule(lines.following()))
            return readTable(lines);
        return readParagraph(lines);
    case Start::Task:
        return readTasks(lines);
    case Start::Bullet:
        return readBullets(lines);
    case Start::Ordered:
        return readOrdered(lines);
    case Start::Heading:
        return readHeading(lines);
    case Start::Rule:
        lines.advance();
        return MDBlock::Rule{};
    case Start::Blank:
    case Start::Words:
        break;
    }
    return readParagraph(lines);
}

} // namespace

QList<MDBlock> parse(QStringView text) {
    QList<MDBlock> blocks;
    LineReader lines(text);
    while (!lines.atEnd()) {
        const Start start = startOf(lines.bare());
        if (start == Start::Blank)
            lines.advance();
        else
            blocks.append({freshId(), readBlock(lines, start)});
    }
    return blocks;
}

} // namespace kiv::text::MDParser
