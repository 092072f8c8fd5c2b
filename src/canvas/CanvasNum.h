#pragma once

#include "base/Regex.h"

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

/// The one reader of figures as answers write them, and their writer. A null text is an absent one.
namespace kiv::canvas::CanvasNum {

/// A number found in a text.
struct Found {
    double value = 0;
    Regex::Range range;
    QString raw;
};

/// The figure that a whole value text stands for: "$1,234.50", "12 345,5", "1.2 млн", "(300)".
/// A trailing k, m or b multiplies, also where it ends a word: "12 km" is twelve million.
std::optional<double> parse(QStringView text);

/// A plain decimal number with its thousands grouped by U+202F; any other text unchanged.
QString out(QStringView text);

/// The decimal text of a number without a needless fraction: 5, 2.5.
QString decimal(double value);

/// Every number of a text in order, a decimal comma read as a point. A sign directly before a digit
/// belongs to the number.
QList<Found> numsIn(QStringView text);

/// The number that a short text stands for, a range read as its midpoint: "10–20" is 15.
std::optional<double> numFromText(QStringView text);

} // namespace kiv::canvas::CanvasNum
