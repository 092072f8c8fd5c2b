#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace kiv::canvas {

/// A figure as prose writes it: "$1,200 (+4%)", "~3.5k", "10–20 days", "8/10".
struct ProseFigure {
    double value = 0;
    QString unit;    ///< as written: $, %, days, /10; empty without one
    QString display; ///< the figure as written, without what stands in parentheses behind it
    QString delta;   ///< a change in parentheses: "+4%"
    QString remark;  ///< anything else in parentheses

    /// Equal for figures that can share an axis: one day and two days.
    QString unitKey() const;
};

/// Nothing unless the whole text is one figure. Dates, times, versions, telephone numbers and
/// sentences that hold a number are none: prose must not become a chart.
std::optional<ProseFigure> proseFigure(QStringView text);

/// Whether a text can name a figure: a few words that are no sentence.
bool isFigureName(QStringView name);

/// Whether the number under this name is a mark rather than a measure: "Year", "Room", "Версия".
bool namesNoMeasure(QStringView name);

} // namespace kiv::canvas
