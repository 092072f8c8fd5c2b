#pragma once

#include "text/BlockParts.h"
#include "text/FoldedText.h"

namespace kiv::text {

/// Some words of a message by where they show.
struct WordPlace {
    int part = 0;
    /// Of the part: a line of its words or code, an item of a list, a cell of a table counted row
    /// by row. A part that goes on with a table does not count the head.
    int line = 0;
    int start = 0;  ///< in the line's words without its mark-up, in UTF-16 units
    int length = 0; ///< likewise
    friend auto operator<=>(const WordPlace &, const WordPlace &) = default;
};

/// The words of a message as they show, ready to be searched.
class SearchText {
public:
    /// Whether the words stand as they were typed, or their mark-up is read.
    enum class Markup { None, Read };

    SearchText(const QList<BlockPart> &parts, Markup markup);

    /// From the first to the last. Words that a line end parts are not found; of those that go on
    /// in the next part of a line the place is that of the first.
    QList<WordPlace> find(const FoldedText &words) const;

private:
    struct Line {
        qsizetype start = 0; ///< in the text of all lines
        int part = 0;
        int line = 0;
    };

    QList<Line> m_lines;
    FoldedText m_text;
};

} // namespace kiv::text
