#include "canvas/KpiCards.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneText.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Lines that a block carries beside its key figures, as rows or as points.
QStringList highlightsOf(const ViewSpec &spec, const QString &unit) {
    QStringList lines;
    for (const QStringList &row : spec.rows) {
        QStringList cells = row;
        cells.removeIf([](const QString &cell) { return cell.trimmed().isEmpty(); });
        lines.append(cells.join(u" · "));
    }
    for (const ViewSpec::Point &point : spec.points) {
        const QString value = valueText(point, unit);
        const bool both = !point.label.isEmpty() && !value.isEmpty();
        lines.append(both ? point.label + u": "_s + value : point.label + value);
    }
    lines.removeAll(QString());
    return lines;
}

QString lineOf(const KpiCard &card) {
    const QString change = card.delta.isEmpty() ? QString() : u" ("_s + card.delta + u')';
    return card.label + u": "_s + card.value + change;
}

} // namespace

std::optional<SceneOut> buildReport(const ViewSpec &spec) {
    const QString unit = spec.unit.value_or(QString());
    SceneOut scene;
    scene.kpiCards = kpiCardsOf(spec);
    const qsizetype figures = scene.kpiCards.size();
    for (const KpiCard &card : scene.kpiCards.mid(mostCards))
        scene.highlights.append(lineOf(card));
    scene.kpiCards.resize(std::min(figures, mostCards));
    for (const ViewSpec::Item &item : spec.items) {
        if (valueText(item, unit).isEmpty() && !item.label.trimmed().isEmpty())
            scene.highlights.append(item.label);
    }
    scene.highlights += highlightsOf(spec, unit);
    const qsizetype count = figures == 0 ? scene.highlights.size() : figures;
    if (count == 0)
        return std::nullopt;
    scene.countLine = QString::number(count) + u" · from the answer"_s;
    return scene;
}

} // namespace kiv::canvas
