#include "canvas/TableScene.h"

#include "canvas/AnswerTable.h"
#include "canvas/SceneAdapter.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

ViewSpec asTable(const ViewSpec &spec) {
    ViewSpec table = spec;
    const QList<AnswerTable> tables = answerTables(spec);
    if (spec.rows.isEmpty() && spec.points.isEmpty() && !tables.isEmpty()) {
        table.columns = tables.first().columns;
        table.rows = tables.first().rows;
    }
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
