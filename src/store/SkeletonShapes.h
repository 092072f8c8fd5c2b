#pragma once

#include "store/Enums.h"

#include <QString>

#include <optional>

namespace kiv::store {

/// The shape that a scene of this intent or art is likely to have.
SkeletonShape skeletonShapeFor(const std::optional<QString> &intent);

} // namespace kiv::store
