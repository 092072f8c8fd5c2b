#pragma once

#include "canvas/ViewSpec.h"

#include <optional>

namespace kiv::canvas {

/// How far a point has come, as percentages.
struct Progress {
    int percent = 0;
    std::optional<int> target; ///< absent when the answer gives none
};

/// A percentage is taken as it is; a figure with a target is its share of it, which is then 100; a
/// figure from 0 to 1 alone is a fraction. Nothing for a figure that is no progress.
std::optional<Progress> progressOf(const ViewSpec::Point &point, const QString &unit);

} // namespace kiv::canvas
