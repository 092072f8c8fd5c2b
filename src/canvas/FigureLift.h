#pragma once

#include "canvas/ProseFigure.h"
#include "canvas/ViewSpec.h"

#include <QList>

#include <optional>

namespace kiv::canvas {

/// What has more rows is no chart.
constexpr qsizetype mostBars = 12;

/// One line of prose that may name a figure.
struct LiftedLine {
    QString name;
    QString text; ///< behind the name; empty when the line has no such part
    std::optional<ProseFigure> figure;
};

/// None when all of them may be years or days, which measure nothing.
qsizetype figureCount(const QList<LiftedLine> &lines);

/// Whether plain numbers stand under a heading that makes them marks: "Versions", "Contents".
bool areMarks(const QList<LiftedLine> &lines, const std::optional<QString> &heading);

/// Bars when all lines are figures of one axis that add up, else cards; a table when there are too
/// many for cards.
ViewSpec barsOrCards(const QList<LiftedLine> &lines);

/// Cards whatever the figures are.
ViewSpec cards(const QList<LiftedLine> &lines);

} // namespace kiv::canvas
