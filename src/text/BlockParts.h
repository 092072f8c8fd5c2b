#pragma once

#include "text/MDBlock.h"

namespace kiv::text {

/// What can be laid out at once of a block: all of it as a rule, a piece of it when it is huge.
struct BlockPart {
    /// How a part follows the one before: as another block, with the next line or item of the same
    /// block, or in the middle of a line.
    enum class Joint { Block, Line, Text };

    MDBlock::Kind content = MDBlock::Paragraph();
    Joint joint = Joint::Block;
    int block = 0;    ///< place of its block in the message
    bool ends = true; ///< its block ends with it
    friend bool operator==(const BlockPart &, const BlockPart &) = default;
};

/// The blocks in parts that are bounded in text and lines, whatever the blocks hold. A part of a
/// table repeats the head, for its columns.
QList<BlockPart> partsOf(const QList<MDBlock> &blocks);

/// A text that is no markdown, as parts of one paragraph.
QList<BlockPart> plainParts(const QString &text);

} // namespace kiv::text
