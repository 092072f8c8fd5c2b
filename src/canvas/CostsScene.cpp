#include "canvas/SceneAdapter.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

QList<ViewSpec::Point> drawableOf(QList<ViewSpec::Point> points) {
    points.removeIf([](const ViewSpec::Point &point) { return !isDrawable(point.value); });
    return points;
}

/// What a sum is made of: every label while they are few, else from where to where they run.
QString spanOf(const QList<ViewSpec::Point> &points) {
    constexpr qsizetype mostNamed = 60;
    QStringList labels;
    for (const ViewSpec::Point &point : points)
        labels.append(point.label.trimmed());
    labels.removeAll(QString());
    labels.removeDuplicates();
    const QString all = labels.join(u", "_s);
    return all.size() <= mostNamed ? all : labels.first() + u" – "_s + labels.last();
}

/// A stack becomes one row a series: its sum, and what it is made of.
QList<ViewSpec::Point> stacksOf(const ViewSpec &spec) {
    QList<ViewSpec::Point> rows;
    for (const ViewSpec::Series &series : spec.series) {
        const QList<ViewSpec::Point> points = drawableOf(series.points);
        if (points.isEmpty())
            continue;
        QList<double> values;
        for (const ViewSpec::Point &point : points)
            values.append(*point.value);
        rows.append({.label = series.name, .value = sumOf(values), .hint = spanOf(points)});
    }
    return rows;
}

/// Several lines in one list of bars: every point under the name of its line.
QList<ViewSpec::Point> linesOf(const ViewSpec &spec) {
    QList<ViewSpec::Point> rows;
    for (const ViewSpec::Series &series : spec.series) {
        for (ViewSpec::Point point : series.points) {
            if (!point.hint)
                point.hint = series.name;
            rows.append(point);
        }
    }
    return rows;
}

QList<ViewSpec::Point> rowsOf(const ViewSpec &spec) {
    if (spec.kind == u"stacked" && spec.series.size() > 1)
        return stacksOf(spec);
    return drawableOf(spec.series.size() > 1 ? linesOf(spec) : pointsOf(spec));
}

/// Scores, prices, balances and the values of several lines are compared, not added.
bool isCompared(const ViewSpec &spec) {
    const bool severalLines = spec.kind != u"stacked" && spec.series.size() > 1;
    const QString name = spec.series.size() == 1 ? spec.series.first().name : QString();
    return spec.kind == u"rank" || severalLines ||
           isRelative(spec.title.value_or(QString()) + u' ' + name);
}

/// A total that the answer states is no row beside what it sums up.
QString takeStatedTotal(QList<ViewSpec::Point> &rows, const QString &unit) {
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (isTotalName(rows.at(i).label))
            return valueText(rows.takeAt(i), unit);
    }
    return {};
}

void addSegments(SceneOut &scene, const QList<ViewSpec::Point> &rows) {
    double sum = 0;
    for (const ViewSpec::Point &row : rows)
        sum += *row.value;
    for (qsizetype i = 0; i < rows.size() && sum > 0; ++i) {
        if (*rows.at(i).value > 0)
            scene.coSegs.append({.label = rows.at(i).label.trimmed(),
                                 .w = *rows.at(i).value / sum * 100,
                                 .bg = scene.coRows.at(i).color});
    }
}

} // namespace

std::optional<SceneOut> buildCosts(const ViewSpec &spec) {
    QList<ViewSpec::Point> rows = rowsOf(spec);
    const QString unit = unitOf(spec, rows);
    const QString stated = rows.size() > 1 ? takeStatedTotal(rows, unit) : QString();
    if (rows.isEmpty())
        return std::nullopt;
    double largest = 0;
    for (const ViewSpec::Point &row : rows)
        largest = std::max(largest, std::abs(*row.value));

    SceneOut scene;
    for (const ViewSpec::Point &row : rows) {
        const auto &colors = SceneAdapter::palette();
        scene.coRows.append({.name = row.label.trimmed(),
                             .sub = row.hint.value_or(QString()).trimmed(),
                             .amount = valueText(row, unit),
                             .pct = largest > 0 ? *row.value / largest * 100 : 0,
                             .color = colors.at(scene.coRows.size() % colors.size())});
    }
    scene.countLine = QString::number(rows.size()) + u" rows · from the answer"_s;
    const QString total = isCompared(spec) ? QString() : totalText(rows, unit);
    scene.coTotal = stated.isEmpty() ? total : stated;
    if (!scene.coTotal.isEmpty())
        scene.coTotalSub = u"answer arrived · "_s + scene.countLine;
    if (!total.isEmpty())
        addSegments(scene, rows);
    scene.insight = u"Bar lengths follow the values in the answer."_s;
    return scene;
}

} // namespace kiv::canvas
