#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

SceneColor colorOf(int percent) {
    if (percent >= 101)
        return SceneColor::Red;
    return percent < 90 ? SceneColor::Green : SceneColor::Amber;
}

std::optional<WlRow> rowOf(const ViewSpec::Point &point) {
    const QString name = point.label.trimmed();
    if (name.isEmpty() || !isDrawable(point.value) || *point.value < 0)
        return std::nullopt;
    const bool isFraction = *point.value > 0 && *point.value <= 1;
    const auto percent = wholePercent(isFraction ? *point.value * 100 : *point.value);
    if (!percent)
        return std::nullopt;
    return WlRow{.name = name,
                 .role = point.hint.value_or(QString()),
                 .pct = *percent,
                 .color = colorOf(*percent)};
}

} // namespace

std::optional<SceneOut> buildWorkload(const ViewSpec &spec) {
    SceneOut scene;
    for (const ViewSpec::Point &point : pointsOf(spec)) {
        if (const auto row = rowOf(point))
            scene.wlRows.append(*row);
    }
    if (scene.wlRows.size() < 2)
        return std::nullopt;
    scene.countLine = QString::number(scene.wlRows.size()) + u" people · from the answer"_s;
    scene.insight =
        u"Bar length is capped at 100%; the number is the real value from the answer."_s;
    return scene;
}

} // namespace kiv::canvas
