#pragma once

#include <QString>
#include <QStringView>

namespace kiv::canvas {

/// Whether a text can name a figure: a few words that are no sentence and no remark ("Note").
bool isFigureName(QStringView name);

/// Whether a plain number under this name is a mark rather than a measure: "Year", "Room",
/// "Версия". With a unit it measures all the same: "Room: 25 m²".
bool namesNoMeasure(QStringView name);

/// The same of a heading over a list of plain numbers: "Versions", "Contents", "Телефоны".
bool headsNoMeasure(QStringView heading);

} // namespace kiv::canvas
