#pragma once

#include "base/JVal.h"
#include "canvas/ReplyOptions.h"
#include "canvas/ViewSpec.h"

#include <QList>
#include <QString>

#include <optional>

namespace kiv::canvas {

/// What bubble and canvas make of an answer, finished or still being written.
struct AnswerReading {
    QString text;  ///< without the options line
    QString shown; ///< what is left of it beside a drawing: without data block or drawn table
    QList<ReplyChip> chips;
    std::optional<ViewSpec> spec;
    /// Nothing that is still to come belongs to what `spec` was read from, as far as can be told:
    /// a closed block, a structured view, or a table that something follows.
    bool isWhole = false;
};

/// `view` is the structured view that the backend may attach to a row.
AnswerReading readAnswer(const QString &text, const std::optional<JVal> &view = {},
                         const ReplySources &sources = {});

/// What to show of a text that is still being written: a data block that has begun and not ended is
/// not for reading yet.
QString withoutOpenBlock(const QString &text);

} // namespace kiv::canvas
