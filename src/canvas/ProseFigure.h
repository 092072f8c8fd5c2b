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
    QString delta;   ///< a change in parentheses or with an arrow: "+4%", "↑ 4%"
    QString remark;  ///< anything else in parentheses

    /// Equal for figures that can share an axis: one day and two days.
    QString unitKey() const;
    /// A plain number that reads as a year or as a day and its month: "2019", "12.05".
    bool mayBeDate() const;
};

/// Nothing unless the whole text is one figure. Dates, times, versions, telephone numbers and
/// sentences that hold a number are none: prose must not become a chart. Neither are figures that
/// can be read in two ways, such as "9–17" and "1.200 €".
std::optional<ProseFigure> proseFigure(QStringView text);

/// The figure under a name; nothing for a plain number where the name makes it a mark ("Room: 5").
std::optional<ProseFigure> measure(QStringView name, QStringView text);

} // namespace kiv::canvas
