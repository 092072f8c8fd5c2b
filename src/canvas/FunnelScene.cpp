#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

std::optional<SceneOut> buildFunnel(const ViewSpec &spec) {
    QList<ViewSpec::Point> points = pointsOf(spec);
    points.removeIf(
        [](const ViewSpec::Point &point) { return !isDrawable(point.value) || *point.value < 0; });
    const QString unit = unitOf(spec, points);
    double widest = 0;
    for (const ViewSpec::Point &point : points)
        widest = std::max(widest, *point.value);
    if (points.size() < 2 || widest == 0)
        return std::nullopt;
    const double first = *points.first().value;
    const double whole = first > 0 ? first : widest;

    SceneOut scene;
    double before = 0;
    for (qsizetype i = 0; i < points.size(); ++i) {
        const ViewSpec::Point &point = points.at(i);
        const double value = *point.value;
        const QString name = point.label.trimmed();
        FnStage stage{.name = name.isEmpty() ? u"Stage "_s + QString::number(i + 1) : name,
                      .n = valueText(point, unit),
                      .w = std::min(1.0, value / whole),
                      .last = i + 1 == points.size()};
        if (i > 0 && before > 0) {
            stage.conv = shareText(value, before);
            if (value < before)
                stage.drop = shareText(before - value, before);
        }
        scene.fnStages.append(stage);
        before = value;
    }
    scene.countLine = QString::number(points.size()) + u" stages · from the answer"_s;
    scene.insight = u"Stage widths follow the counts in the answer."_s;
    return scene;
}

} // namespace kiv::canvas
