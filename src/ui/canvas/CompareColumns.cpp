#include "ui/canvas/CompareColumns.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostColumns = 60; ///< each row shows all of them at once
constexpr double nameShare = 0.3;
constexpr double nameLeast = 120;
constexpr double narrow = 600;
constexpr double wideGap = 32;
constexpr double narrowGap = 20;
constexpr double indent = 40; ///< more room before a text column that follows figures
constexpr double textLeast = 96;
constexpr double textMost = 280;

/// The least that a column can do with: a figure is never cut, words are.
double leastWidth(const CompareColumn &column, double natural) {
    return column.numeric ? natural : std::min(natural, textLeast);
}

bool startsText(const QList<CompareColumn> &columns, qsizetype i) {
    return i > 0 && !columns.at(i).numeric && columns.at(i - 1).numeric;
}

} // namespace

QString CompareColumns::spoken(const canvas::CpRow &row) const {
    QStringList words{row.name};
    for (const CompareColumn &column : m_columns) {
        const QString cell = row.cells.value(column.cell);
        if (!cell.isEmpty())
            words.append((column.title + u' ' + cell).trimmed());
    }
    return words.join(u", "_s);
}

void CompareColumns::measure() {
    m_columns.clear();
    m_natural.clear();
    m_isLong = false;
    const QFontMetricsF words(font());
    m_naturalName = words.horizontalAdvance(nameTitle());
    for (const canvas::CpRow &row : scene().cpRows)
        m_naturalName = std::max(m_naturalName, words.horizontalAdvance(row.name));
    qsizetype cells = std::max<qsizetype>(0, scene().cpCols.size() - 1);
    for (const canvas::CpRow &row : scene().cpRows)
        cells = std::max(cells, row.cells.size());
    cells = std::min(cells, mostColumns);
    for (qsizetype cell = 0; cell < cells; ++cell) {
        CompareColumn column;
        column.cell = static_cast<int>(cell);
        column.title = scene().cpCols.value(cell + 1);
        column.numeric = true;
        bool filled = false;
        double widest = words.horizontalAdvance(column.title);
        for (const canvas::CpRow &row : scene().cpRows) {
            const QString text = row.cells.value(cell);
            if (text.isEmpty())
                continue;
            filled = true;
            column.numeric = column.numeric && row.numeric.value(cell);
            widest = std::max(widest, words.horizontalAdvance(text));
        }
        if (!filled && column.title.isEmpty())
            continue;
        column.numeric = column.numeric && filled;
        m_isLong = m_isLong || (!column.numeric && widest > textMost);
        if (!column.numeric)
            widest = std::min(widest, textMost);
        m_natural.append(std::ceil(widest));
        m_columns.append(column);
    }
}

void CompareColumns::layOut() {
    const double gap = width() < narrow ? narrowGap : wideGap;
    const qsizetype count = m_columns.size();
    double wanted = 0;
    double least = 0;
    double indents = 0;
    for (qsizetype i = 0; i < count; ++i) {
        wanted += gap + m_natural.at(i);
        least += gap + leastWidth(m_columns.at(i), m_natural.at(i));
        indents += startsText(m_columns, i) ? indent : 0;
    }

    m_nameWidth = std::max(nameLeast, std::floor(width() * nameShare) - gap);
    // Names that are shorter than their share leave the rest to cells that need it.
    if (m_nameWidth + wanted > width())
        m_nameWidth = std::clamp(std::ceil(m_naturalName), nameLeast, m_nameWidth);
    const double room = width() - m_nameWidth;
    // Between the least and the wanted widths all text columns give way by the same share.
    const double give =
        wanted > room && wanted > least ? std::min(1.0, (wanted - room) / (wanted - least)) : 0;
    const bool indented = wanted + indents <= room;
    const double spare = std::max(0.0, room - wanted - (indented ? indents : 0)) /
                         static_cast<double>(std::max<qsizetype>(1, count));
    double x = 0;
    for (qsizetype i = 0; i < count; ++i) {
        CompareColumn &column = m_columns[i];
        const double natural = m_natural.at(i);
        x += gap + (indented && startsText(m_columns, i) ? indent : 0);
        column.x = x;
        column.width = natural - give * (natural - leastWidth(column, natural)) + spare;
        x += column.width;
    }
    // Shares of the room may add up to a hair more than it is.
    m_cellsWidth = std::abs(x - room) < 0.5 ? room : x;
    m_isCut = m_isLong || give > 0 || m_cellsWidth > room;
    Q_EMIT changed();
}

} // namespace kiv::ui
