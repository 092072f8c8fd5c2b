#pragma once

#include "canvas/ViewSpec.h"

#include <QList>
#include <QString>

#include <optional>

/// What scenes may do with figures: nothing is drawn of one that has no sensible length.
namespace kiv::canvas {

/// Finite and of a size that a chart can show.
bool isDrawable(const std::optional<double> &value);

/// Rounded half away from zero; nothing past a million per cent.
std::optional<int> wholePercent(double percent);

/// "42%", below one per cent and above 99 with a decimal, and "<0.1%" for less: little does not
/// read as nothing, nor most as all.
QString shareText(double part, double whole);

/// The view's points; without any, those of its only series or its key figures.
QList<ViewSpec::Point> pointsOf(const ViewSpec &spec);

/// The unit that is given, else the sign that all values carry.
QString unitOf(const ViewSpec &spec, const QList<ViewSpec::Point> &points);

/// Whether a value is written as a percentage.
bool isPercentage(const ViewSpec::Point &point, const QString &unit);

/// The figure of a percentage; a fraction beside its percentage, 0.62 beside "62%", counts as what
/// is shown.
double percentageOf(const ViewSpec::Point &point);

/// The sum with no more decimals than its parts have.
double sumOf(const QList<double> &values);

/// The sum as shown. Empty where it would mean nothing: of percentages, temperatures, amounts below
/// zero, unlike units, or figures of which one contains another, such as revenue and profit.
QString totalText(const QList<ViewSpec::Point> &points, const QString &unit);

/// Whether figures under these labels add up to something. Stages of a funnel hold each other.
bool addUp(const QStringList &labels);

/// Whether a heading names figures of which each stands for itself: prices, averages,
/// scores, balances.
bool isRelative(const QString &heading);

/// Whether a row sums up the others: "Total", "Итого".
bool isTotalName(const QString &name);

} // namespace kiv::canvas
