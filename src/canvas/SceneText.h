#pragma once

#include "canvas/ViewSpec.h"

#include <QString>

/// How scenes write figures and names.
namespace kiv::canvas {

/// A number with grouped thousands, U+2212 for minus, and its unit: signs of currency lead, other
/// units follow.
QString figureText(double value, const QString &unit);

/// The value as the answer wrote it, else as a figure; empty without either.
QString valueText(const ViewSpec::Point &point, const QString &unit);
QString valueText(const ViewSpec::Item &item, const QString &unit);

/// The word of an art, as the canvas names it: "Report", "Cash flow".
QString artWord(const QString &art);

/// The answer's heading, else the art's word.
QString sceneTitle(const ViewSpec &spec, const QString &art);

} // namespace kiv::canvas
