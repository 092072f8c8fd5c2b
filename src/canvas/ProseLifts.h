#pragma once

#include "canvas/AnswerBlock.h"
#include "canvas/ViewSpec.h"

#include <QString>

#include <optional>

/// Views lifted from plain prose, for answers that carry no block. A false chart is worse
/// than none: what might be mere prose gives nothing, and code is never read.
namespace kiv::canvas::CanvasEngine {

/// The first mark-down table, which is taken out of the text. One column of figures for up to a
/// dozen rows gives an hbar, scores of two options a compare, anything else a table.
DrawableAnswer liftGfmTable(const QString &text);

/// The first list of which at least two items, and most of them, name a figure: "Ads: $1,200
/// (+4%)". Figures that add up on one axis give an hbar, others a kpi.
std::optional<ViewSpec> liftList(const QString &text);

/// The first run of label and value lines of which at least two, and half of them, are figures.
std::optional<ViewSpec> liftKv(const QString &text);

} // namespace kiv::canvas::CanvasEngine
