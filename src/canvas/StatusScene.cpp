#include "canvas/CanvasNum.h"
#include "canvas/Progress.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// "18 of 20".
bool tellsTarget(const ViewSpec::Point &point) {
    const auto numbers = CanvasNum::numsIn(point.display.value_or(QString())).mid(1);
    return std::ranges::any_of(
        numbers, [&](const CanvasNum::Found &number) { return number.value == point.target; });
}

QString noteOf(const ViewSpec::Point &point, const QString &unit) {
    QStringList parts;
    const QString hint = point.hint.value_or(QString()).trimmed();
    if (!hint.isEmpty())
        parts.append(hint);
    if (!isPercentage(point, unit) && isDrawable(point.target) && !tellsTarget(point))
        parts.append(valueText(point, unit) + u" of "_s + figureText(*point.target, unit));
    else if (!isPercentage(point, unit) && point.display)
        parts.append(valueText(point, unit));
    return parts.join(u" · ");
}

} // namespace

std::optional<SceneOut> buildStatus(const ViewSpec &spec) {
    const QList<ViewSpec::Point> points = pointsOf(spec);
    const QString unit = unitOf(spec, points);
    SceneOut scene;
    int measured = 0;
    int onTrack = 0;
    for (const ViewSpec::Point &point : points) {
        const auto progress = progressOf(point, unit);
        if (!progress || point.label.trimmed().isEmpty())
            continue;
        const bool hasTarget = progress->target.has_value();
        const bool good =
            hasTarget ? progress->percent >= *progress->target : point.status != u"blocked"_s;
        measured += hasTarget ? 1 : 0;
        onTrack += hasTarget && good ? 1 : 0;
        scene.streams.append({.name = point.label.trimmed(),
                              .pct = progress->percent,
                              .note = noteOf(point, unit),
                              .good = good,
                              .target = progress->target.value_or(-1)});
    }
    if (scene.streams.isEmpty())
        return std::nullopt;
    if (measured > 0)
        scene.statusSummary = u"%1 of %2 on track"_s.arg(onTrack).arg(measured);
    scene.countLine = QString::number(scene.streams.size()) + u" streams · value against target"_s;
    scene.insight = u"Bars show value against target, straight from the answer."_s;
    return scene;
}

} // namespace kiv::canvas
