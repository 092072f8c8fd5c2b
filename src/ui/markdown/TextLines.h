#pragma once

#include "text/BlockParts.h"
#include "text/MDParser.h"

#include <QFont>

namespace kiv::ui {

/// A run of characters in one look.
struct TextRun {
    /// Words in the text's own colour, list figures, done tasks, and the head of a table.
    enum class Tone { Plain, Figure, Done, Head };

    QString text;
    text::MDParser::Styles styles;
    QString link;
    Tone tone = Tone::Plain;
    friend bool operator==(const TextRun &, const TextRun &) = default;
};

/// A line of a document, wrapped or not. Lengths are device-independent pixels.
struct TextLine {
    QList<TextRun> runs;
    double indent = 0;  ///< of all its lines
    double hanging = 0; ///< how far the first line begins before the indent
    double above = 0;   ///< room before it when it is not the first
    double height = 0;  ///< of its lines where it is not the text's own
    QList<double> tabs; ///< from the left edge of the text
    friend bool operator==(const TextLine &, const TextLine &) = default;

    bool isPlacedLike(const TextLine &other) const;
};

/// The lines of every block that is words; a table's are made by its columns.
QList<TextLine> textLines(const text::BlockPart &part, const QFont &font);

/// The lines of a text that is no markdown.
QList<TextLine> plainLines(const QString &text);

/// The styled runs of one line of markdown, without what a document would take for its own marks.
QList<TextRun> runsOf(const QString &text, TextRun::Tone tone = TextRun::Tone::Plain);

} // namespace kiv::ui
