#pragma once

#include "canvas/SceneOut.h"
#include "canvas/ViewSpec.h"

#include <optional>

namespace kiv::canvas {

/// What a view says as rows and columns, whatever its kind: points, key figures, series (a column
/// each) and boards (a row a card). Empty cells where it says nothing.
ViewSpec asTable(const ViewSpec &spec);

namespace SceneAdapter {

/// The scene of a view where only some arts can be drawn: another art's figures become a
/// comparison table. Nothing when there is nothing to draw.
std::optional<SceneOut> valsAmong(const QStringList &arts, const ViewSpec &spec,
                                  const std::optional<QString> &intent);

} // namespace SceneAdapter
} // namespace kiv::canvas
