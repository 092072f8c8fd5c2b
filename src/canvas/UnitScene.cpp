#include "canvas/KpiCards.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Percentages are shares of a hundred, also when they leave a rest; small excess is rounding.
constexpr double roundedHundred = 101;

double shareOf(const ViewSpec::Point &part, const QString &unit) {
    return isPercentage(part, unit) ? percentageOf(part) : *part.value;
}

/// What the parts are shares of; nothing when they are no parts of one whole.
std::optional<double> wholeOf(const QList<ViewSpec::Point> &parts, const QString &unit) {
    double sum = 0;
    qsizetype percentages = 0;
    for (const ViewSpec::Point &part : parts) {
        if (!isDrawable(part.value) || *part.value < 0)
            return std::nullopt;
        sum += shareOf(part, unit);
        percentages += isPercentage(part, unit) ? 1 : 0;
    }
    if (parts.size() < 2 || sum <= 0)
        return std::nullopt;
    if (percentages == 0)
        return sum;
    if (percentages < parts.size())
        return std::nullopt;
    return sum > roundedHundred ? std::nullopt : std::optional(std::max(sum, 100.0));
}

void addParts(SceneOut &scene, const QList<ViewSpec::Point> &parts, double whole,
              const QString &unit) {
    double left = 0;
    for (const ViewSpec::Point &part : parts) {
        const double width = shareOf(part, unit) / whole * 100;
        const auto &colors = SceneAdapter::palette();
        scene.ueRows.append({.name = part.label.trimmed(),
                             .left = left,
                             .w = width,
                             .color = colors.at(scene.ueRows.size() % colors.size()),
                             .value = valueText(part, unit)});
        left += width;
    }
    scene.coTotal = totalText(parts, unit);
    const QString behind = u'\u00a0' + unit;
    if (scene.coTotal.endsWith(behind)) {
        scene.coTotal.chop(behind.size());
        scene.coTotalSub = unit;
    }
}

} // namespace

std::optional<SceneOut> buildUnit(const ViewSpec &spec) {
    QList<ViewSpec::Point> parts = spec.points;
    parts.removeIf([](const ViewSpec::Point &part) {
        return (!part.value && part.label.trimmed().isEmpty()) || isTotalName(part.label);
    });
    const QString unit = unitOf(spec, parts);
    SceneOut scene;
    if (const auto whole = wholeOf(parts, unit))
        addParts(scene, parts, *whole, unit);
    else if (!parts.isEmpty())
        return std::nullopt;
    scene.ueKpis = kpiCardsOf(spec);
    const bool isNothing = scene.ueRows.isEmpty() && scene.ueKpis.isEmpty();
    if (isNothing || scene.ueKpis.size() > mostCards)
        return std::nullopt;
    if (scene.ueRows.isEmpty()) {
        scene.countLine = QString::number(scene.ueKpis.size()) + u" · from the answer"_s;
    } else {
        scene.countLine = QString::number(scene.ueRows.size()) + u" parts"_s;
        scene.insight = u"Shares of the whole, as given in the answer."_s;
    }
    return scene;
}

} // namespace kiv::canvas
