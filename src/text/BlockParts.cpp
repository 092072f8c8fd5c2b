#include "text/BlockParts.h"

#include <algorithm>
#include <numeric>

namespace kiv::text {

namespace {

using Joint = BlockPart::Joint;

/// What a part holds at most. A line longer than a part is cut, so nothing is ever larger.
struct Limits {
    qsizetype chars; ///< plain ones; others count for more
    qsizetype lines;
    qsizetype line; ///< of one line: where lines do not wrap, many long ones show at once
};

constexpr Limits wordLimits{2500, 60, 2500};
constexpr Limits codeLimits{12000, 200, 1000};
constexpr Limits tableLimits{12000, 100, 12000};
constexpr qsizetype cellLimit = 1000;
/// Drawing a line of cells takes time that grows with the square of their number.
constexpr qsizetype columnLimit = 60;
constexpr qsizetype cellCost = 8; ///< what laying a cell out costs beside its text, in characters

/// What laying a character out costs beside that of a plain one: an emoji is a picture, and a mark
/// begins or ends words in another look.
qsizetype costOf(QChar c) {
    if (c.isHighSurrogate())
        return 20;
    return c == u'*' || c == u'`' || c == u'[' ? 5 : 1;
}

qsizetype costOf(QStringView text) {
    return std::accumulate(text.begin(), text.end(), qsizetype(0),
                           [](qsizetype sum, QChar c) { return sum + costOf(c); });
}

/// How many characters from the start cost `most` together.
qsizetype affordable(QStringView text, qsizetype most) {
    qsizetype length = 0;
    while (length < text.size() && most > 0)
        most -= costOf(text[length++]);
    return length;
}

/// How much of a text a part takes: up to a line's end or a word's end in the second half of what
/// fits, and never half a character.
qsizetype fitting(QStringView text, Limits limits) {
    limits.chars = affordable(text, limits.chars);
    limits.line = std::min(limits.line, limits.chars);
    const auto nextEnd = [text](qsizetype from, qsizetype within) {
        const qsizetype end =
            text.sliced(from).first(std::min(text.size() - from, within)).indexOf(u'\n');
        return end < 0 ? end : from + end;
    };
    qsizetype start = 0; // of a line that is not in it yet
    for (qsizetype lines = 0;; ++lines) {
        if (lines == limits.lines)
            return start;
        const qsizetype end = nextEnd(start, limits.line + 1);
        if (end < 0 || end >= limits.chars)
            break;
        start = end + 1;
    }
    const bool isLong = text.size() - start > limits.line && nextEnd(start, limits.line + 1) < 0;
    if (isLong && start > 0 && limits.line < limits.chars)
        return start;
    const qsizetype most = isLong ? limits.line : limits.chars;
    if (text.size() <= most)
        return text.size();
    const QStringView head = text.first(most);
    for (const QChar end : {u'\n', u' '}) {
        const qsizetype at = head.lastIndexOf(end);
        if (at > most / 2)
            return at + 1;
    }
    return most - (head.back().isHighSurrogate() && text[most].isLowSurrogate());
}

struct Piece {
    QString text;
    Joint joint = Joint::Block;
};

QList<Piece> piecesOf(const QString &text, Limits limits) {
    QList<Piece> pieces;
    Joint joint = Joint::Block;
    QStringView rest = text;
    do {
        const qsizetype length = fitting(rest, limits);
        QStringView piece = rest.first(length);
        rest = rest.sliced(length);
        const bool isLineEnd = !rest.isEmpty() && piece.endsWith(u'\n');
        if (isLineEnd)
            piece.chop(1);
        pieces.append({piece.size() == text.size() ? text : piece.toString(), joint});
        joint = isLineEnd ? Joint::Line : Joint::Text;
    } while (!rest.isEmpty());
    return pieces;
}

QString &textOf(QString &line) {
    return line;
}
QString &textOf(MDBlock::OrderedItem &item) {
    return item.text;
}
QString &textOf(MDBlock::TaskItem &item) {
    return item.text;
}
const QString &textOf(const QString &line) {
    return line;
}
const QString &textOf(const MDBlock::OrderedItem &item) {
    return item.text;
}
const QString &textOf(const MDBlock::TaskItem &item) {
    return item.text;
}

/// Appends the parts of one block.
class Cutter {
public:
    Cutter(QList<BlockPart> &parts, int block) : m_parts(parts), m_block(block) {}

    void operator()(const MDBlock::Heading &heading) {
        for (const Piece &piece : piecesOf(heading.text, wordLimits))
            append(MDBlock::Heading{heading.level, piece.text}, piece.joint);
    }
    void operator()(const MDBlock::Paragraph &paragraph) {
        for (const Piece &piece : piecesOf(paragraph.text, wordLimits))
            append(MDBlock::Paragraph{piece.text}, piece.joint);
    }
    void operator()(const MDBlock::Bullets &bullets) { cutLines<MDBlock::Bullets>(bullets.items); }
    void operator()(const MDBlock::Ordered &ordered) { cutLines<MDBlock::Ordered>(ordered.items); }
    void operator()(const MDBlock::Tasks &tasks) { cutLines<MDBlock::Tasks>(tasks.items); }
    void operator()(const MDBlock::Quote &quote) { cutLines<MDBlock::Quote>(quote.lines); }
    void operator()(const MDBlock::Code &code) {
        for (const Piece &piece : piecesOf(code.text, codeLimits))
            append(MDBlock::Code{piece.text}, piece.joint);
    }
    void operator()(const MDBlock::Table &table) {
        const QStringList header = boundedCells(table.header);
        MDBlock::Table part{header, {}};
        qsizetype chars = 0;
        Joint joint = Joint::Block;
        for (const QStringList &row : table.rows) {
            const QStringList cells = boundedCells(row);
            qsizetype length = cells.size() * cellCost;
            for (const QString &cell : cells)
                length += cell.size();
            const bool isFull =
                part.rows.size() == tableLimits.lines || chars + length > tableLimits.chars;
            if (!part.rows.isEmpty() && isFull) {
                append(std::exchange(part, {header, {}}), joint);
                joint = Joint::Line;
                chars = 0;
            }
            part.rows.append(cells);
            chars += length;
        }
        append(std::move(part), joint);
    }
    void operator()(const MDBlock::Rule &rule) { append(rule, Joint::Block); }

private:
    /// Not inlined, for GCC would then take the members of a copied variant for uninitialised.
    Q_NEVER_INLINE void append(const MDBlock::Kind &content, Joint joint) {
        if (joint != Joint::Block)
            m_parts.last().ends = false;
        m_parts.append(BlockPart{content, joint, m_block, true});
    }

    /// A cell shows its first thousand characters; copying the table takes them all.
    static QStringList boundedCells(const QStringList &cells) {
        QStringList bounded = cells.first(std::min(cells.size(), columnLimit));
        for (QString &cell : bounded) {
            if (cell.size() > cellLimit)
                cell = cell.first(fitting(cell, {cellLimit, 1, cellLimit})) + u'…';
        }
        return bounded;
    }

    template <typename Block, typename Line>
    void cutLines(const QList<Line> &lines) {
        qsizetype first = 0;
        qsizetype cost = 0;
        Joint joint = Joint::Block;
        const auto flush = [&](qsizetype end) {
            if (end > first)
                append(Block{lines.sliced(first, end - first)}, std::exchange(joint, Joint::Line));
            first = end;
            cost = 0;
        };
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const qsizetype more = costOf(textOf(lines.at(i)));
            if (i - first == wordLimits.lines || cost + more > wordLimits.chars)
                flush(i);
            cost += more;
            if (more <= wordLimits.chars)
                continue;
            for (const Piece &piece : piecesOf(textOf(lines.at(i)), wordLimits)) {
                Line line = lines.at(i);
                textOf(line) = piece.text;
                append(Block{{line}}, piece.joint == Joint::Block ? joint : piece.joint);
            }
            joint = Joint::Line;
            first = i + 1;
            cost = 0;
        }
        flush(lines.size());
    }

    QList<BlockPart> &m_parts;
    int m_block;
};

} // namespace

QList<BlockPart> partsOf(const QList<MDBlock> &blocks) {
    QList<BlockPart> parts;
    parts.reserve(blocks.size());
    for (qsizetype i = 0; i < blocks.size(); ++i)
        std::visit(Cutter(parts, static_cast<int>(i)), blocks.at(i).kind);
    return parts;
}

QList<BlockPart> plainParts(const QString &text) {
    return partsOf({MDBlock{{}, MDBlock::Paragraph{text}}});
}

} // namespace kiv::text
