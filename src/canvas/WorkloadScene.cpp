#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"

#include <cmath>
#include <limits>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

SceneColor colorOf(int percent) {
    if (percent >= 101)
        return SceneColor::Red;
    return percent < 90 ? SceneColor::Green : SceneColor::Amber;
}

/// Everybody with a name and a figure has a row, whatever the figure is.
std::optional<WlRow> rowOf(const ViewSpec::Point &point) {
    const QString name = point.label.trimmed();
    const double value = point.value.value_or(NAN);
    const double percent = std::round(value > 0 && value <= 1 ? value * 100 : value);
    constexpr int most = std::numeric_limits<int>::max();
    if (name.isEmpty() || !(std::abs(percent) <= most))
        return std::nullopt;
    const int whole = static_cast<int>(percent);
    return WlRow{.name = name,
                 .role = point.hint.value_or(QString()),
                 .pct = whole,
                 .color = colorOf(whole)};
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
