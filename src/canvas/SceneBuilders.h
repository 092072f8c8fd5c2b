#pragma once

#include "canvas/SceneOut.h"
#include "canvas/ViewSpec.h"

#include <optional>

/// One builder per art, for the scene adapter alone. A builder fills everything but art and title,
/// and gives nothing when its minimum data is missing.
namespace kiv::canvas {

std::optional<SceneOut> buildReport(const ViewSpec &spec);
std::optional<SceneOut> buildCompare(const ViewSpec &spec);

} // namespace kiv::canvas
