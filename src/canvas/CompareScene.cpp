#include "canvas/AnswerTable.h"
#include "canvas/CanvasNum.h"
#include "canvas/SceneBuilders.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype fewestCells = 4;

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

} // namespace

std::optional<SceneOut> buildCompare(const ViewSpec &spec) {
    const AnswerTable table = spec.rows.isEmpty()
                                  ? pointTable(spec.points, spec.unit.value_or(QString()))
                                  : AnswerTable{spec.columns, spec.rows};
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
