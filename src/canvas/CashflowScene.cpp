#include "canvas/CashflowSeries.h"
#include "canvas/SceneBuilders.h"

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr int gridLines = 4;

/// The least of 1, 2, 2.5 and 5 times a power of ten that is at least `size`.
double roundStep(double size) {
    const double power = std::pow(10.0, std::floor(std::log10(size)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        if (factor * power >= size)
            return factor * power;
    }
    return 10 * power;
}

/// What the plot spans: 0 included, both ends on a grid line.
struct Plot {
    double low = 0;
    double high = 0;

    explicit Plot(const QList<Period> &periods) {
        for (const Period &period : periods) {
            for (const auto &figure : {period.in, period.out, period.balance}) {
                low = std::min(low, figure ? figure->value : 0);
                high = std::max(high, figure ? figure->value : 0);
            }
        }
        if (high == low)
            return;
        const double step = roundStep(std::max(high, -low) / gridLines);
        high = std::ceil(high / step) * step;
        low = std::floor(low / step) * step;
    }
    double lengthOf(double value) const { return high > low ? value / (high - low) * 100 : 0; }
    double heightOf(double value) const { return lengthOf(value - low); }
};

/// The ends of the range are named in any case.
QString nameOf(const QList<Period> &periods, qsizetype index) {
    const QString name = periods.at(index).name.trimmed();
    if (!name.isEmpty())
        return name;
    if (index == 0)
        return u"First"_s;
    return index + 1 == periods.size() ? u"Last"_s : QString();
}

} // namespace

std::optional<SceneOut> buildCashflow(const ViewSpec &spec) {
    const CashflowSeries series(spec);
    const QList<Period> periods = series.periods();
    if (periods.size() < 2)
        return std::nullopt;
    const Plot plot(periods);
    SceneOut scene;
    for (qsizetype i = 0; i < periods.size(); ++i) {
        const Period &period = periods.at(i);
        CfMonth month{.name = nameOf(periods, i)};
        if (period.in) {
            month.inH = plot.lengthOf(period.in->value);
            month.in = period.in->text;
        }
        if (period.out) {
            month.outH = plot.lengthOf(period.out->value);
            month.out = period.out->text;
        }
        if (period.balance) {
            month.bal = std::llround(period.balance->value);
            month.balY = plot.heightOf(period.balance->value);
            month.balance = period.balance->text;
            const double middle =
                (static_cast<double>(i) + 0.5) / static_cast<double>(periods.size());
            scene.cfLine.append({middle * 100, month.balY});
        }
        scene.cfMonths.append(month);
    }
    scene.cfLow = plot.low;
    scene.cfHigh = plot.high;
    scene.sub = scene.cfMonths.first().name + u" – "_s + scene.cfMonths.last().name;
    scene.countLine = QString::number(periods.size()) + u" periods"_s;
    // One of several lines is drawn: the count line says which.
    if (!series.soleLine().isEmpty())
        scene.countLine += u" of "_s + series.soleLine();
    scene.countLine += u" · from the answer"_s;
    scene.insight = u"Bars and the line follow the series in the answer."_s;
    return scene;
}

} // namespace kiv::canvas
