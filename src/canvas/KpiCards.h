#pragma once

#include "canvas/CardRows.h"
#include "canvas/ViewSpec.h"

namespace kiv::canvas {

/// Cards are all made at once, however many are in view.
constexpr qsizetype mostCards = 60;

/// A card for every key figure that has a value to show.
QList<KpiCard> kpiCardsOf(const ViewSpec &spec);

} // namespace kiv::canvas
