#include "ui/canvas/CompareColumns.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double nameShare = 0.3;
constexpr double nameLeast = 120;
constexpr double padding = 16;
constexpr double textIndent = 56;
constexpr double textLeast = 120;
constexpr double textMost = 280;

/// The least that a column can do with: a figure is never cut, words are.
double leastWidth(const CompareColumn &column, double natural) {
    return column.numeric ? natural : std::min(natural, textLeast + column.indent);
}

} // namespace

void CompareColumns::setScene(const canvas::SceneOut &scene) {
    if (m_scene == scene)
        return;
    m_scene = scene;
    Q_EMIT sceneChanged();
    measure();
}

void CompareColumns::setWidth(double width) {
    if (std::exchange(m_width, width) == width)
        return;
    Q_EMIT widthChanged();
    layOut();
}

void CompareColumns::setFont(const QFont &font) {
    if (m_font == font)
        return;
    m_font = font;
    Q_EMIT fontChanged();
    measure();
}

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
    const QFontMetricsF words(m_font);
    qsizetype cells = std::max<qsizetype>(0, m_scene.cpCols.size() - 1);
    for (const canvas::CpRow &row : std::as_const(m_scene.cpRows))
        cells = std::max(cells, row.cells.size());
    for (qsizetype cell = 0; cell < cells; ++cell) {
        CompareColumn column;
        column.cell = static_cast<int>(cell);
        column.title = m_scene.cpCols.value(cell + 1);
        column.numeric = true;
        bool filled = false;
        double widest = words.horizontalAdvance(column.title);
        for (const canvas::CpRow &row : std::as_const(m_scene.cpRows)) {
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
        if (!column.numeric) {
            widest = std::min(widest, textMost);
            if (!m_columns.isEmpty() && m_columns.last().numeric)
                column.indent = textIndent - padding;
        }
        m_natural.append(std::ceil(widest) + 2 * padding + column.indent);
        m_columns.append(column);
    }
    layOut();
}

void CompareColumns::layOut() {
    m_nameWidth = std::max(nameLeast, std::floor(m_width * nameShare));
    const double room = m_width - m_nameWidth;
    const double wanted = std::accumulate(m_natural.begin(), m_natural.end(), 0.0);
    double least = 0;
    for (qsizetype i = 0; i < m_columns.size(); ++i)
        least += leastWidth(m_columns.at(i), m_natural.at(i));

    // Between the least and the wanted widths all text columns give way by the same share.
    const double give =
        wanted > room && wanted > least ? std::min(1.0, (wanted - room) / (wanted - least)) : 0;
    const double spare =
        std::max(0.0, room - wanted) / std::max<double>(1, static_cast<double>(m_columns.size()));
    double x = 0;
    for (qsizetype i = 0; i < m_columns.size(); ++i) {
        const double natural = m_natural.at(i);
        CompareColumn &column = m_columns[i];
        column.x = x;
        column.width = std::floor(natural - give * (natural - leastWidth(column, natural)) + spare);
        x += column.width;
    }
    m_cellsWidth = x;
    Q_EMIT changed();
}

} // namespace kiv::ui
