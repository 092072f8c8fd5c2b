#include "ui/markdown/TextLines.h"

#include <QFontMetricsF>

#include <cmath>

namespace kiv::ui {

using namespace Qt::StringLiterals;
using text::BlockPart;
using text::MDBlock;
using text::MDParser::InlineSpan;
using Tone = TextRun::Tone;

namespace {

constexpr double itemGap = 4;
constexpr double markGap = 10;
constexpr double bulletColumn = 10;
constexpr double figureColumn = 18;
constexpr double checkBox = 16;

/// As many marks as a character is shown with.
constexpr int mostMarks = 8;

/// Makes Latin letters read from right to left: what is shown would not be what is there.
bool isOverride(QChar c) {
    return c == u'\u202d' || c == u'\u202e';
}

/// What can be shown of a character: not what ends a line, stands for an object or frames text in a
/// document, no control characters, nothing that turns letters around and no half of a pair.
bool isKept(QChar c) {
    return (c >= u' ' && c < u'\u007f') || c == u'\t' ||
           (c > u'\u009f' && !c.isSurrogate() && c != QChar::LineSeparator &&
            c != QChar::ParagraphSeparator && c != QChar::ObjectReplacementCharacter &&
            !isOverride(c) && (c < u'\ufdd0' || c > u'\ufdef') && c < u'\ufffe');
}

bool isPlain(QChar c) {
    return isKept(c) && c < u'\u0300';
}

/// What can be shown of a text. Marks that are heaped up on a character would take long to place.
QString displayed(const QString &text) {
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;
    QString shown;
    shown.reserve(text.size());
    int marks = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const char32_t code = isPair ? QChar::surrogateToUcs4(c, text.at(i + 1)) : c.unicode();
        marks = QChar::isMark(code) ? marks + 1 : 0;
        if (marks <= mostMarks) {
            if (isPair)
                shown += QStringView(text).sliced(i, 2);
            else if (isKept(c))
                shown += c;
            else
                shown += c.isSpace() ? QChar(u' ') : QChar(QChar::ReplacementCharacter);
        }
        i += isPair;
    }
    return shown;
}

/// A block's text as lines; its styles may reach over their ends.
QList<TextLine> linesOf(const QString &text) {
    QList<TextLine> lines(1);
    for (const InlineSpan &span : text::MDParser::inlineSpans(text)) {
        const QStringList pieces = span.text.split(u'\n');
        for (qsizetype i = 0; i < pieces.size(); ++i) {
            if (i > 0)
                lines.append(TextLine());
            if (!pieces.at(i).isEmpty())
                lines.last().runs.append({displayed(pieces.at(i)), span.styles, span.link});
        }
    }
    return lines;
}

TextLine item(const QString &text, double indent, Tone tone = Tone::Plain) {
    return {.runs = runsOf(text, tone), .indent = indent, .above = itemGap};
}

/// Puts a mark before an item, at `place` from the left edge.
void mark(TextLine &line, const QString &mark, double place) {
    line.runs.prepend({mark + u'\t', {}, {}, Tone::Figure});
    line.hanging = line.indent - place;
    line.tabs = {line.indent};
}

struct LineMaker {
    const BlockPart &part;
    const QFont &font;

    bool isMarked(qsizetype index) const {
        return index > 0 || part.joint != BlockPart::Joint::Text;
    }

    QList<TextLine> operator()(const MDBlock::Heading &heading) const {
        return linesOf(heading.text);
    }
    QList<TextLine> operator()(const MDBlock::Paragraph &paragraph) const {
        return linesOf(paragraph.text);
    }
    QList<TextLine> operator()(const MDBlock::Bullets &bullets) const {
        const QFontMetricsF metrics(font);
        const double place = (bulletColumn - metrics.horizontalAdvance(u'•')) / 2;
        QList<TextLine> lines;
        for (const QString &text : bullets.items) {
            lines.append(item(text, bulletColumn + markGap));
            if (isMarked(lines.size() - 1))
                mark(lines.last(), u"•"_s, place);
        }
        return lines;
    }
    QList<TextLine> operator()(const MDBlock::Ordered &ordered) const {
        const QFontMetricsF metrics(font);
        double column = figureColumn;
        for (const auto &entry : ordered.items)
            column = std::max(
                column, std::ceil(metrics.horizontalAdvance(QString::number(entry.number) + u'.')));
        QList<TextLine> lines;
        for (const auto &entry : ordered.items) {
            lines.append(item(entry.text, column + markGap));
            if (isMarked(lines.size() - 1))
                mark(lines.last(), QString::number(entry.number) + u'.', 0);
        }
        return lines;
    }
    QList<TextLine> operator()(const MDBlock::Tasks &tasks) const {
        QList<TextLine> lines;
        for (const auto &entry : tasks.items)
            lines.append(
                item(entry.text, checkBox + markGap, entry.done ? Tone::Done : Tone::Plain));
        return lines;
    }
    QList<TextLine> operator()(const MDBlock::Quote &quote) const {
        return linesOf(quote.lines.join(u'\n'));
    }
    QList<TextLine> operator()(const MDBlock::Code &code) const { return plainLines(code.text); }
    QList<TextLine> operator()(const MDBlock::Table &) const { return {}; }
    QList<TextLine> operator()(const MDBlock::Rule &) const { return {}; }
};

} // namespace

bool TextLine::isPlacedLike(const TextLine &other) const {
    return indent == other.indent && hanging == other.hanging && above == other.above &&
           height == other.height && tabs == other.tabs;
}

QList<TextLine> textLines(const BlockPart &part, const QFont &font) {
    return std::visit(LineMaker{part, font}, part.content);
}

QList<TextLine> plainLines(const QString &text) {
    QList<TextLine> lines;
    const QStringList pieces = text.split(u'\n');
    for (const QString &piece : pieces) {
        TextLine line;
        if (!piece.isEmpty())
            line.runs.append({displayed(piece)});
        lines.append(line);
    }
    return lines;
}

QList<TextRun> runsOf(const QString &text, Tone tone) {
    QList<TextRun> runs;
    for (const InlineSpan &span : text::MDParser::inlineSpans(text))
        runs.append({displayed(span.text), span.styles, span.link, tone});
    return runs;
}

} // namespace kiv::ui
