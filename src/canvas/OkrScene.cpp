#include "canvas/Groups.h"
#include "canvas/Progress.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

struct Objective {
    QString name;
    QString owner;
    QList<ViewSpec::Point> results;
};

/// Series and board columns are objectives; plain points are the results of one, or of one for each
/// owner, whose name may follow that of the objective.
QList<Objective> objectivesOf(const ViewSpec &spec, const QString &title) {
    QList<Objective> groups;
    for (const ViewSpec::Series &series : spec.series)
        groups.append({series.name, {}, series.points});
    for (const ViewSpec::BoardCol &column : spec.boardCols)
        groups.append({column.name, {}, column.points});
    if (!groups.isEmpty())
        return groups;
    static const QString separator = u" · "_s; // "Grow the pilots · Ann"
    Groups<Objective> byOwner;
    for (const ViewSpec::Point &point : spec.points) {
        const QString hint = point.hint.value_or(QString()).trimmed();
        const qsizetype mark = hint.indexOf(separator);
        const QString name = mark < 0 ? title : hint.first(mark).trimmed();
        const QString owner = mark < 0 ? hint : hint.sliced(mark + separator.size()).trimmed();
        byOwner.of(hint, {name, owner, {}}).results.append(point);
    }
    return byOwner.all();
}

/// Good from seven tenths, fair from a half.
SceneColor colorOf(double tenths) {
    return tenths >= 7 ? SceneColor::Green : tenths >= 5 ? SceneColor::Amber : SceneColor::Red;
}

std::optional<OkObj> scored(const Objective &objective, const QString &unit) {
    OkObj result{.name = objective.name, .owner = objective.owner};
    double sum = 0;
    for (const ViewSpec::Point &point : objective.results) {
        const auto progress = progressOf(point, unit);
        if (!progress || point.label.trimmed().isEmpty())
            continue;
        const double target = progress->target.value_or(100);
        const auto share = wholePercent(progress->percent / std::max(target, 1.0) * 100);
        if (!share)
            continue;
        result.krs.append(
            {.title = point.label.trimmed(), .pct = *share, .color = colorOf(*share / 10.0)});
        sum += std::min(*share, 100);
    }
    if (result.krs.isEmpty())
        return std::nullopt;
    result.score = QString::number(sum / 100 / static_cast<double>(result.krs.size()), 'f', 1);
    result.scoreColor = colorOf(result.score.toDouble() * 10);
    return result;
}

} // namespace

std::optional<SceneOut> buildOkr(const ViewSpec &spec) {
    const QString title = spec.title.value_or(QString()).trimmed();
    const QString unit = spec.unit.value_or(QString()).trimmed();
    SceneOut scene;
    qsizetype results = 0;
    for (const Objective &objective :
         objectivesOf(spec, title.isEmpty() ? u"Key results"_s : title)) {
        if (const auto drawn = scored(objective, unit)) {
            scene.okObjs.append(*drawn);
            results += drawn->krs.size();
        }
    }
    if (results == 0)
        return std::nullopt;
    scene.countLine = QString::number(results) + u" key results · from the answer"_s;
    scene.insight = u"Scores follow value against target in the answer."_s;
    return scene;
}

} // namespace kiv::canvas
