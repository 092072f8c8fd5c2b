#include "base/Regex.h"
#include "canvas/PlanColumns.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Up to a tenth over plan still counts as good.
constexpr double tolerance = 1.1;

struct Line {
    QString name;
    std::optional<double> plan;
    double actual = 0;
    QString planText;
    QString actualText;
};

bool isAmount(const std::optional<double> &value) {
    return isDrawable(value) && *value >= 0;
}

/// A line needs what was spent; without a plan it has none to be measured against.
void addLine(QList<Line> &lines, const ViewSpec::Point &point, const QString &planText,
             const QString &actualText) {
    const bool badPlan = point.target && !isAmount(point.target);
    if (!point.label.trimmed().isEmpty() && isAmount(point.value) && !badPlan)
        lines.append({point.label.trimmed(), point.target, *point.value, planText, actualText});
}

QList<Line> linesOfRows(const ViewSpec &spec) {
    const PlanColumns columns(spec, PlanColumns::Order::PlanFirst);
    QList<Line> lines;
    for (const QStringList &row : spec.rows)
        addLine(lines, columns.measured(row), columns.planText(row), columns.actualText(row));
    return lines;
}

bool isPlan(const ViewSpec::Series &series) {
    static const Regex planned(u"plan|budget|target|план|бюджет", Regex::CaseInsensitive);
    return planned.contains(series.name);
}

/// Two series of which one is named as the plan; two others are no plan and its outcome.
bool isPlanAndActual(const ViewSpec &spec) {
    return spec.points.isEmpty() && spec.series.size() == 2 &&
           isPlan(spec.series.at(0)) != isPlan(spec.series.at(1));
}

/// The plan and what was spent, matched by label.
QList<ViewSpec::Point> pointsOfSeries(const QList<ViewSpec::Series> &series) {
    const bool firstIsPlan = isPlan(series.at(0));
    const auto &plan = series.at(firstIsPlan ? 0 : 1).points;
    QList<ViewSpec::Point> points = series.at(firstIsPlan ? 1 : 0).points;
    QHash<QString, std::optional<double>> plans;
    for (const ViewSpec::Point &point : plan)
        plans.insert(point.label, point.value);
    for (ViewSpec::Point &point : points)
        point.target = plans.value(point.label);
    return points;
}

QList<Line> linesOf(const ViewSpec &spec) {
    const bool twoSeries = isPlanAndActual(spec);
    if (!twoSeries && !spec.rows.isEmpty() && PlanColumns(spec).hasActual())
        return linesOfRows(spec);
    const auto points = twoSeries ? pointsOfSeries(spec.series) : pointsOf(spec);
    const QString unit = unitOf(spec, points);
    QList<Line> lines;
    for (const ViewSpec::Point &point : points)
        addLine(lines, point,
                isDrawable(point.target) ? figureText(*point.target, unit) : QString(),
                valueText(point, unit));
    return lines;
}

BgRow rowOf(const Line &line, double scale) {
    const double plan = line.plan.value_or(0);
    const double deviation = plan > 0 ? std::round((line.actual - plan) / plan * 100) : 0;
    const bool over = line.plan && line.actual > plan * tolerance;
    const QString size = QString::number(deviation == 0 ? 0 : deviation, 'f', 0); // never "-0"
    const QString delta = (deviation >= 1 ? u"+"_s : QString()) + size + u'%';
    // A plan that is not to be measured against, of another currency, tells no deviation.
    const bool isMeasured = line.plan || line.planText.isEmpty();
    return BgRow{.name = line.name,
                 .plan = line.planText,
                 .actual = line.actualText,
                 .planPct = scale > 0 ? plan / scale * 100 : 0,
                 .actPct = scale > 0 ? line.actual / scale * 100 : 0,
                 .fill = over ? SceneColor::Red : SceneColor::Blue,
                 .delta = isMeasured ? delta : QString(),
                 .deltaGood = !over};
}

} // namespace

std::optional<SceneOut> buildBudget(const ViewSpec &spec) {
    const QList<Line> lines = linesOf(spec);
    // Spending alone is no budget.
    if (std::none_of(lines.begin(), lines.end(), [](const Line &line) { return line.plan; }))
        return std::nullopt;
    double scale = 0;
    for (const Line &line : lines)
        scale = std::max({scale, line.plan.value_or(0), line.actual});
    SceneOut scene;
    for (const Line &line : lines)
        scene.bgRows.append(rowOf(line, scale));
    scene.countLine = QString::number(scene.bgRows.size()) + u" lines · from the answer"_s;
    scene.insight = u"Bars follow plan vs actual in the answer."_s;
    return scene;
}

} // namespace kiv::canvas
