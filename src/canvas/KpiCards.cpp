#include "canvas/KpiCards.h"

#include "canvas/SceneText.h"

namespace kiv::canvas {

namespace {

/// A change is good or bad by the sign it is written with, and neither without one.
std::optional<bool> isGoodDelta(const QString &delta) {
    const QString written = delta.trimmed();
    if (written.startsWith(u'+'))
        return true;
    if (written.startsWith(u'-') || written.startsWith(u'−'))
        return false;
    return std::nullopt;
}

} // namespace

QList<KpiCard> kpiCardsOf(const ViewSpec &spec) {
    const QString unit = spec.unit.value_or(QString());
    QList<KpiCard> cards;
    for (const ViewSpec::Item &item : spec.items) {
        const QString value = valueText(item, unit);
        const QString delta = item.delta.value_or(QString()).trimmed();
        if (!value.isEmpty())
            cards.append({item.label, value, delta, isGoodDelta(delta)});
    }
    return cards;
}

} // namespace kiv::canvas
