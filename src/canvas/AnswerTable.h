#pragma once

#include "canvas/ViewSpec.h"

namespace kiv::canvas {

/// How many cells a table may be filled up to: a short answer may name thousands of columns and
/// have as many rows, and say next to nothing in them.
constexpr qsizetype mostCells = 100'000;

/// Figures of an answer in rows and columns, as texts that read as the answer has them. Cells where
/// it says nothing are empty; a row may be shorter or longer than the columns are many.
struct AnswerTable {
    QStringList columns;
    QList<QStringList> rows;
};

/// A row for each point and a column for each thing that any of them tells.
AnswerTable pointTable(const QList<ViewSpec::Point> &points, const QString &unit);

/// All that a view says, a table for each way in which it says it: rows, points, boards (a row a
/// card), series (a column each, or a row a point where they tell more than values), key figures.
QList<AnswerTable> answerTables(const ViewSpec &spec);

} // namespace kiv::canvas
