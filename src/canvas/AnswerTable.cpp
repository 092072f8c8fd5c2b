#include "canvas/AnswerTable.h"

#include "canvas/SceneText.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// All cells of a point; `group` is what it belongs to.
QStringList cellsOf(const ViewSpec::Point &point, const QString &group, const QString &unit) {
    return {point.label,
            group,
            valueText(point, unit),
            point.target ? figureText(*point.target, unit) : QString(),
            point.status.value_or(QString()),
            point.hint.value_or(QString())};
}

QStringList titles(const QString &name, const QString &group) {
    return {name, group, u"Value"_s, u"Target"_s, u"Status"_s, u"Note"_s};
}

/// Columns without a cell go, the first one stays.
AnswerTable withoutEmptyColumns(AnswerTable table) {
    for (qsizetype column = table.columns.size() - 1; column > 0; --column) {
        const bool isEmpty = std::ranges::all_of(
            table.rows, [&](const QStringList &row) { return row.at(column).isEmpty(); });
        if (!isEmpty)
            continue;
        table.columns.removeAt(column);
        for (QStringList &row : table.rows)
            row.removeAt(column);
    }
    return table;
}

AnswerTable boardTable(const ViewSpec &spec, const QString &unit) {
    AnswerTable table{titles(u"Card"_s, u"Column"_s), {}};
    for (const ViewSpec::BoardCol &column : spec.boardCols) {
        for (const ViewSpec::Point &card : column.points) {
            if (!card.label.isEmpty())
                table.rows.append(cellsOf(card, column.name, unit));
        }
    }
    return withoutEmptyColumns(table);
}

/// Whether a cell for each label and series holds all that the series tell.
bool isGrid(const QList<ViewSpec::Series> &series) {
    QSet<QString> all;
    const bool fits = std::ranges::all_of(series, [&all](const ViewSpec::Series &one) {
        QSet<QString> labels;
        for (const ViewSpec::Point &point : one.points)
            labels.insert(point.label);
        all += labels;
        return labels.size() == one.points.size() &&
               std::ranges::none_of(one.points, [](const ViewSpec::Point &point) {
                   return point.target || point.status || point.hint;
               });
    });
    return fits && all.size() * series.size() <= mostCells;
}

/// A row for each label, in the order in which the series bring them up.
AnswerTable seriesGrid(const QList<ViewSpec::Series> &series, const QString &unit) {
    AnswerTable table{{u"Name"_s}, {}};
    for (const ViewSpec::Series &one : series)
        table.columns.append(one.name);
    QHash<QString, qsizetype> rows;
    for (qsizetype column = 0; column < series.size(); ++column) {
        for (const ViewSpec::Point &point : series.at(column).points) {
            const auto known = rows.constFind(point.label);
            const qsizetype row = known == rows.cend() ? table.rows.size() : *known;
            if (known == rows.cend()) {
                rows.insert(point.label, row);
                table.rows.append(QStringList(table.columns.size(), QString()));
                table.rows.last().first() = point.label;
            }
            table.rows[row][column + 1] = valueText(point, unit);
        }
    }
    return table;
}

AnswerTable seriesTable(const QList<ViewSpec::Series> &series, const QString &unit) {
    if (isGrid(series))
        return seriesGrid(series, unit);
    AnswerTable table{titles(u"Name"_s, u"Series"_s), {}};
    for (const ViewSpec::Series &one : series) {
        for (const ViewSpec::Point &point : one.points)
            table.rows.append(cellsOf(point, one.name, unit));
    }
    return withoutEmptyColumns(table);
}

AnswerTable itemTable(const QList<ViewSpec::Item> &items, const QString &unit) {
    AnswerTable table{{u"Name"_s, u"Value"_s, u"Change"_s}, {}};
    for (const ViewSpec::Item &item : items)
        table.rows.append({item.label, valueText(item, unit), item.delta.value_or(QString())});
    return withoutEmptyColumns(table);
}

/// Whether the points say nothing beside the rows, as bars that were lifted from a table.
bool repeatRows(const ViewSpec &spec) {
    return std::ranges::equal(
        spec.points, spec.rows, [](const ViewSpec::Point &point, const QStringList &row) {
            return row.value(0) == point.label && point.display && row.contains(*point.display) &&
                   row.contains(point.hint.value_or(point.label)) && !point.target && !point.status;
        });
}

} // namespace

AnswerTable pointTable(const QList<ViewSpec::Point> &points, const QString &unit) {
    AnswerTable table{titles(u"Name"_s, QString()), {}};
    for (const ViewSpec::Point &point : points)
        table.rows.append(cellsOf(point, QString(), unit));
    return withoutEmptyColumns(table);
}

QList<AnswerTable> answerTables(const ViewSpec &spec) {
    const QString unit = spec.unit.value_or(QString());
    QList<AnswerTable> tables{{spec.columns, spec.rows},
                              repeatRows(spec) ? AnswerTable() : pointTable(spec.points, unit),
                              boardTable(spec, unit),
                              seriesTable(spec.series, unit),
                              itemTable(spec.items, unit)};
    tables.removeIf([](const AnswerTable &table) { return table.rows.isEmpty(); });
    return tables;
}

} // namespace kiv::canvas
