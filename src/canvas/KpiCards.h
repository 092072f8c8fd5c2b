#pragma once

#include "canvas/CardRows.h"
#include "canvas/ViewSpec.h"

namespace kiv::canvas {

/// A card for every key figure that has a value to show.
QList<KpiCard> kpiCardsOf(const ViewSpec &spec);

} // namespace kiv::canvas
