#include "ui/markdown/TableColumns.h"

#include "canvas/CanvasNum.h"
#include "ui/tokens/Typefaces.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace kiv::ui {

using namespace Qt::StringLiterals;
using text::MDBlock;
using text::MDParser::Style;
using Tone = TextRun::Tone;

namespace {

constexpr double inset = 14;
constexpr double headShorter = 2; ///< the line of the head than that of a row
/// A column of words that is wider than this wraps before the table scrolls.
constexpr double wordsMost = 240;
constexpr double headMost = 120; ///< the same for the head of figures

QString plainText(const QList<TextRun> &runs) {
    QString text;
    for (const TextRun &run : runs)
        text += run.text;
    return text;
}

QFont fontOf(const TextRun &run, QFont font, const TextLook &look) {
    if (run.styles.testFlag(Style::Bold) || run.tone == Tone::Head)
        font.setWeight(QFont::DemiBold);
    if (run.styles.testFlag(Style::Italic))
        font.setItalic(true);
    if (run.tone == Tone::Head)
        font.setPixelSize(look.headSize);
    if (run.styles.testFlag(Style::Code)) {
        font.setFamilies({codeFamily()});
        font.setPixelSize(look.codeSize);
    }
    return font;
}

QList<TextRun> sliceOf(const QList<TextRun> &runs, qsizetype start, qsizetype length) {
    QList<TextRun> slice;
    for (const TextRun &run : runs) {
        const qsizetype first = std::max(start, qsizetype(0));
        const qsizetype end = std::min(start + length, run.text.size());
        if (end > first) {
            slice.append(run);
            slice.last().text = run.text.sliced(first, end - first);
        }
        start -= run.text.size();
    }
    return slice;
}

} // namespace

QList<TextLine> TableColumns::lines(const text::BlockPart &part, const QFont &font,
                                    const TextLook &look, double available) {
    if (m_font != font || m_look != look)
        m_rows.clear();
    m_font = font;
    m_look = look;
    measureRows(std::get<MDBlock::Table>(part.content));
    placeColumns(available);

    QList<TextLine> lines;
    m_rowTops.clear();
    m_placed.clear();
    m_text.clear();
    m_firstRow = part.joint == text::BlockPart::Joint::Block ? 0 : 1;
    double top = 0;
    for (qsizetype row = m_firstRow; row < m_rows.size(); ++row) {
        m_rowTops.append(top);
        const qsizetype before = lines.size();
        addRow(lines, row);
        top += 2 * rowMargin + static_cast<double>(lines.size() - before) * lines.last().height;
    }
    return lines;
}

void TableColumns::measureRows(const MDBlock::Table &table) {
    const auto isKnown = [&](qsizetype row, const QStringList &cells) {
        return row < m_rows.size() && std::ranges::equal(m_rows.at(row), cells, {}, &Cell::source);
    };
    for (qsizetype row = 0; row <= table.rows.size(); ++row) {
        const QStringList &sources = row == 0 ? table.header : table.rows.at(row - 1);
        if (isKnown(row, sources))
            continue;
        QList<Cell> cells;
        for (const QString &source : sources)
            cells.append(measured(source, row == 0));
        if (row < m_rows.size())
            m_rows[row] = cells;
        else
            m_rows.append(cells);
    }
    m_rows.resize(table.rows.size() + 1);

    m_columns.clear();
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        const QList<Cell> &cells = m_rows.at(row);
        m_columns.resize(std::max(m_columns.size(), cells.size()));
        for (qsizetype i = 0; i < cells.size(); ++i) {
            Column &column = m_columns[i];
            column.natural = std::max(column.natural, cells.at(i).width);
            column.figures = row == 0 ? 0 : std::max(column.figures, cells.at(i).width);
            if (row == 0 || cells.at(i).source.isEmpty())
                continue;
            column.isFilled = true;
            column.isNumeric = column.isNumeric && cells.at(i).isFigure;
        }
    }
    for (Column &column : m_columns) {
        column.isNumeric = column.isNumeric && column.isFilled;
        column.least = column.isNumeric
                           ? std::max(column.figures, std::min(column.natural, headMost))
                           : std::min(column.natural, wordsMost);
    }
}

TableColumns::Cell TableColumns::measured(const QString &source, bool isHead) const {
    Cell cell{.source = source};
    cell.runs = runsOf(QString(source).replace(u'\t', u' '), isHead ? Tone::Head : Tone::Plain);
    cell.width = std::ceil(widthOf(cell.runs));
    cell.isFigure = canvas::CanvasNum::parse(plainText(cell.runs)).has_value();
    return cell;
}

double TableColumns::widthOf(const QList<TextRun> &runs) const {
    double width = 0;
    for (qsizetype i = 0; i < runs.size(); ++i) {
        const TextRun &run = runs.at(i);
        width += QFontMetricsF(fontOf(run, m_font, m_look)).horizontalAdvance(run.text);
        const bool isCode = run.styles.testFlag(Style::Code);
        if (isCode || (i + 1 < runs.size() && runs.at(i + 1).styles.testFlag(Style::Code)))
            width += DocumentWriter::codeInset;
    }
    return width;
}

/// Room that is left over goes to all columns by their widths; where room is short, the columns of
/// long words give way.
void TableColumns::placeColumns(double available) {
    double wanted = 0;
    double wide = 0;
    for (const Column &column : std::as_const(m_columns)) {
        wanted += column.natural + 2 * inset;
        wide += column.natural - column.least;
    }
    const double spare = std::max(0.0, available - wanted);
    const double share = wide > 0 ? std::clamp((wanted - available) / wide, 0.0, 1.0) : 0;
    double x = 0;
    for (Column &column : m_columns) {
        column.width = column.natural + spare * (column.natural + 2 * inset) / wanted;
        column.width -= std::floor(share * (column.natural - column.least));
        column.left = x + inset;
        x += column.width + 2 * inset;
    }
    m_width = std::ceil(x);
}

QList<QList<TextRun>> TableColumns::wrapped(const Cell &cell, double width) const {
    if (cell.width <= width)
        return {cell.runs};
    QList<QTextLayout::FormatRange> formats;
    int start = 0;
    for (const TextRun &run : cell.runs) {
        QTextCharFormat format;
        format.setFont(fontOf(run, m_font, m_look));
        formats.append({start, static_cast<int>(run.text.size()), format});
        start += static_cast<int>(run.text.size());
    }
    QTextLayout layout(plainText(cell.runs), m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.setFormats(formats);
    QList<QList<TextRun>> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(sliceOf(cell.runs, line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

void TableColumns::addRow(QList<TextLine> &lines, qsizetype row) {
    const QList<Cell> &cells = m_rows.at(row);
    QList<QList<QList<TextRun>>> pieces;
    qsizetype height = 1;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        pieces.append(wrapped(cells.at(i), m_columns.at(i).width));
        height = std::max(height, pieces.last().size());
    }
    const double lineHeight = m_look.lineHeight - (row == 0 ? headShorter : 0);
    for (qsizetype k = 0; k < height; ++k) {
        TextLine line{.above = k == 0 ? 2 * rowMargin : 0, .height = lineHeight};
        if (!m_text.isEmpty() || !lines.isEmpty())
            m_text += u'\n';
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const QList<TextRun> runs = pieces.at(i).value(k);
            const Column &column = m_columns.at(i);
            const double x = column.left + (column.isNumeric ? column.width - widthOf(runs) : 0);
            if (i == 0) {
                line.indent = x;
            } else {
                line.runs.append({u"\t"_s});
                line.tabs.append(x);
                m_text += u'\t';
            }
            m_placed.append(
                {static_cast<int>(m_text.size()), static_cast<int>(row), static_cast<int>(i)});
            line.runs += runs;
            m_text += plainText(runs);
        }
        lines.append(line);
    }
}

QList<std::pair<int, int>> TableColumns::placesOf(const text::WordPlace &words) const {
    qsizetype column = words.line;
    int row = m_firstRow;
    while (row < m_rows.size() && column >= m_rows.at(row).size())
        column -= m_rows.at(row++).size();
    QList<std::pair<int, int>> places;
    int before = 0; // of the cell, on the lines above
    for (qsizetype i = 0; i < m_placed.size(); ++i) {
        const Placed &piece = m_placed.at(i);
        if (piece.row != row || piece.column != column)
            continue;
        // A tab or a line's end stands before what follows.
        const qsizetype next =
            i + 1 < m_placed.size() ? m_placed.at(i + 1).start - 1 : m_text.size();
        const int length = static_cast<int>(next) - piece.start;
        const int start = std::max(words.start - before, 0);
        const int end = std::min(words.start + words.length - before, length);
        if (start < end)
            places.append({piece.start + start, piece.start + end});
        before += length;
    }
    return places;
}

QString TableColumns::cells(int start, int end) const {
    QList<Placed> touched;
    for (qsizetype i = 0; i < m_placed.size(); ++i) {
        const bool isLast = i + 1 == m_placed.size();
        const qsizetype next = isLast ? m_text.size() + 1 : m_placed.at(i + 1).start;
        if (m_placed.at(i).start < end && next > start)
            touched.append(m_placed.at(i));
    }
    if (touched.size() < 2)
        return m_text.mid(start, end - start);
    const int firstRow = touched.first().row;
    const int lastRow = touched.last().row;
    const auto isTouched = [&](int row, qsizetype column) {
        return firstRow != lastRow || std::ranges::any_of(touched, [&](const Placed &cell) {
                   return cell.row == row && cell.column == column;
               });
    };
    QStringList rows;
    for (int row = firstRow; row <= lastRow; ++row) {
        QStringList words;
        for (qsizetype i = 0; i < m_rows.at(row).size(); ++i) {
            if (isTouched(row, i))
                words.append(plainText(m_rows.at(row).at(i).runs));
        }
        rows.append(words.join(u'\t'));
    }
    return rows.join(u'\n');
}

} // namespace kiv::ui
