#include "canvas/Progress.h"

#include "canvas/SceneFigures.h"

namespace kiv::canvas {

std::optional<Progress> progressOf(const ViewSpec::Point &point, const QString &unit) {
    if (!isDrawable(point.value) || *point.value < 0)
        return std::nullopt;
    const double value = *point.value;
    const double target = isDrawable(point.target) && *point.target > 0 ? *point.target : 0;
    const bool fractions = value <= 1 && target <= 1;
    double percent = value;
    std::optional<int> tick;
    if (isPercentage(point, unit)) {
        const bool bothFractions = fractions && target > 0;
        percent = bothFractions ? value * 100 : percentageOf(point);
        if (target > 0)
            tick = wholePercent(bothFractions ? target * 100 : target);
    } else if (target > 0) {
        percent = fractions ? value * 100 : value / target * 100;
        tick = fractions ? wholePercent(target * 100) : 100;
    } else if (value <= 1) {
        percent = value * 100;
    }
    const auto whole = wholePercent(percent);
    constexpr int mostAlone = 999; // a larger figure without a target is no percentage
    if (!whole || (!tick && *whole > mostAlone))
        return std::nullopt;
    return Progress{*whole, tick};
}

} // namespace kiv::canvas
