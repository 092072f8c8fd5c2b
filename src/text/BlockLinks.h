#pragma once

#include "text/MDBlock.h"

namespace kiv::text {

/// A link of a message.
struct BlockLink {
    QString words;  ///< that it stands on
    QString target; ///< where it leads, as `linkTarget` gives it
    friend bool operator==(const BlockLink &, const BlockLink &) = default;
};

/// The first `most` links of the blocks, in the order in which they are read; each target once.
QList<BlockLink> linksOf(const QList<MDBlock> &blocks, qsizetype most);

} // namespace kiv::text
