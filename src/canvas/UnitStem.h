#pragma once

#include <QString>

namespace kiv::canvas {

/// A unit in lower case without the ending of its number: one day and two days, одна задача and
/// пять задач share an axis.
QString unitStem(const QString &unit);

} // namespace kiv::canvas
