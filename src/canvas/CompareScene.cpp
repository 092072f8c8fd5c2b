#include "canvas/CanvasNum.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneText.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype fewestCells = 4;

struct Table {
    QStringList columns;
    QList<QStringList> rows;
};

CpRow comparisonRow(const QStringList &cells) {
    CpRow row;
    row.name = cells.value(0);
    row.cells = cells.mid(1);
    for (const QString &cell : row.cells)
        row.numeric.append(CanvasNum::parse(cell).has_value());
    while (row.cells.size() < fewestCells) {
        row.cells.append(QString());
        row.numeric.append(false);
    }
    return row;
}

/// Points as a table: a column for each thing that any of them tells.
Table tableOf(const QList<ViewSpec::Point> &points, const QString &unit) {
    struct Column {
        QString name;
        QStringList cells;
    };
    QList<Column> columns{{u"Value"_s, {}}, {u"Target"_s, {}}, {u"Status"_s, {}}, {u"Note"_s, {}}};
    for (const ViewSpec::Point &point : points) {
        columns[0].cells.append(valueText(point, unit));
        columns[1].cells.append(point.target ? figureText(*point.target, unit) : QString());
        columns[2].cells.append(point.status.value_or(QString()));
        columns[3].cells.append(point.hint.value_or(QString()));
    }
    columns.removeIf([](const Column &column) {
        return std::all_of(column.cells.begin(), column.cells.end(),
                           [](const QString &cell) { return cell.isEmpty(); });
    });
    Table table{{u"Name"_s}, {}};
    for (const Column &column : columns)
        table.columns.append(column.name);
    for (qsizetype i = 0; i < points.size(); ++i) {
        QStringList row{points.at(i).label};
        for (const Column &column : columns)
            row.append(column.cells.at(i));
        table.rows.append(row);
    }
    return table;
}

} // namespace

std::optional<SceneOut> buildCompare(const ViewSpec &spec) {
    const Table table = spec.rows.isEmpty() ? tableOf(spec.points, spec.unit.value_or(QString()))
                                            : Table{spec.columns, spec.rows};
    if (table.rows.isEmpty())
        return std::nullopt;
    SceneOut scene;
    scene.cpCols = table.columns;
    for (const QStringList &row : table.rows)
        scene.cpRows.append(comparisonRow(row));
    scene.countLine = u"%1 columns · %2 rows · from the answer"_s.arg(table.columns.size())
                          .arg(table.rows.size());
    scene.insight = u"Rows come straight from the agent's answer."_s;
    return scene;
}

} // namespace kiv::canvas
