#pragma once

#include "canvas/AnswerTable.h"

/// Tables as texts that other programs read.
namespace kiv::canvas {

/// Comma-separated values with a line of titles. Several tables follow each other, parted by an
/// empty row; all rows have the same number of cells, unless that were far more than they hold.
QString csvText(const QList<AnswerTable> &tables);

/// The same with tabs, as spreadsheets exchange cells through the clipboard.
QString tsvText(const QList<AnswerTable> &tables);

} // namespace kiv::canvas
