#pragma once

#include "text/MDBlock.h"

namespace kiv::text {

/// Blocks as HTML for programs that take rich text. What the text holds of HTML is text there too,
/// and nothing in it is fetched from anywhere.
QString htmlOf(const QList<MDBlock> &blocks);

} // namespace kiv::text
