#pragma once

#include "ui/chat/FeedRow.h"

namespace kiv::ui {

/// How high a row will be about, in device-independent pixels: what stands in for its height until
/// it has been laid out at `width`.
double estimatedHeight(const FeedRow &row, double width);

} // namespace kiv::ui
