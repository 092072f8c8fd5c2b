#include "canvas/TableScene.h"

#include "canvas/SceneAdapter.h"
#include "canvas/SceneText.h"

#include <QHash>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

void tabulateItems(const ViewSpec &spec, ViewSpec &table) {
    table.columns = {u"Name"_s, u"Value"_s, u"Change"_s};
    for (const ViewSpec::Item &item : spec.items)
        table.rows.append({item.label, valueText(item, spec.unit.value_or(QString())),
                           item.delta.value_or(QString())});
}

/// A row for each label, in the order in which the series bring them up.
void tabulateSeries(const ViewSpec &spec, ViewSpec &table) {
    table.columns = {u"Name"_s};
    for (const ViewSpec::Series &series : spec.series)
        table.columns.append(series.name);
    QHash<QString, qsizetype> rows;
    for (qsizetype column = 0; column < spec.series.size(); ++column) {
        for (const ViewSpec::Point &point : spec.series.at(column).points) {
            const auto known = rows.constFind(point.label);
            const qsizetype row = known == rows.cend() ? table.rows.size() : *known;
            if (known == rows.cend()) {
                rows.insert(point.label, row);
                table.rows.append(QStringList(table.columns.size(), QString()));
                table.rows.last().first() = point.label;
            }
            table.rows[row][column + 1] = valueText(point, spec.unit.value_or(QString()));
        }
    }
}

void tabulateBoard(const ViewSpec &spec, ViewSpec &table) {
    table.columns = {u"Card"_s, u"Column"_s};
    for (const ViewSpec::BoardCol &column : spec.boardCols) {
        for (const ViewSpec::Point &card : column.points) {
            if (!card.label.isEmpty())
                table.rows.append({card.label, column.name});
        }
    }
}

} // namespace

ViewSpec asTable(const ViewSpec &spec) {
    ViewSpec table = spec;
    if (!spec.rows.isEmpty() || !spec.points.isEmpty())
        return table;
    table.columns.clear();
    if (!spec.boardCols.isEmpty())
        tabulateBoard(spec, table);
    else if (!spec.series.isEmpty())
        tabulateSeries(spec, table);
    else if (!spec.items.isEmpty())
        tabulateItems(spec, table);
    return table;
}

std::optional<SceneOut> SceneAdapter::valsAmong(const QStringList &arts, const ViewSpec &spec,
                                                const std::optional<QString> &intent) {
    auto scene = vals(spec, intent);
    if (!scene || arts.contains(scene->art))
        return scene;
    return build(asTable(spec), intent, u"compare"_s);
}

} // namespace kiv::canvas
