#include "ui/canvas/PlotAxis.h"

#include "canvas/CanvasNum.h"
#include "ui/canvas/Figures.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double leastGutter = 40;
constexpr double gutterGap = 12;
constexpr double leastDistance = 40; ///< between two ticks
constexpr double mostSteps = 8;
constexpr double wantedSteps = 4;

/// Whether `value` lies on a multiple of `step`.
bool isOn(double value, double step) {
    const double multiple = value / step;
    return std::abs(multiple - std::round(multiple)) < 1e-6;
}

/// The round step that divides the range into about `wantedSteps`, at the most into `most`; the
/// whole range when no round step does.
double stepOf(double low, double high, double most) {
    const double range = high - low;
    double best = range;
    double off = std::numeric_limits<double>::max();
    const double power = std::pow(10.0, std::floor(std::log10(range)));
    for (const double factor : {0.1, 0.2, 0.25, 0.5, 1.0, 2.0, 2.5, 5.0}) {
        const double step = factor * power;
        const double steps = std::round(range / step);
        if (steps <= most && isOn(low, step) && isOn(high, step) &&
            std::abs(steps - wantedSteps) < off) {
            best = step;
            off = std::abs(steps - wantedSteps);
        }
    }
    return best;
}

QString textOf(double value) {
    const QString size = canvas::CanvasNum::out(canvas::CanvasNum::decimal(std::abs(value)));
    return value < 0 ? Figures::minus(u"-"_s + size) : size;
}

} // namespace

template <typename T>
void PlotAxis::set(T &member, const T &value) {
    if (member == value)
        return;
    member = value;
    Q_EMIT rangeChanged();
    layOut();
}

void PlotAxis::setLow(double low) {
    set(m_low, low);
    measure();
}

void PlotAxis::setHigh(double high) {
    set(m_high, high);
    measure();
}

void PlotAxis::setHeight(double height) {
    set(m_height, height);
}

void PlotAxis::setFont(const QFont &font) {
    set(m_font, font);
    measure();
}

/// The values of the ticks, from the top down.
QList<double> PlotAxis::valuesOf(double most) const {
    QList<double> values{m_high};
    if (m_high <= m_low)
        return values;
    const double step = stepOf(m_low, m_high, most);
    const auto steps = std::llround((m_high - m_low) / step);
    for (qint64 i = 1; i <= steps; ++i) {
        // Sums of steps would drift: 0.30000000000000004.
        const double value = std::round(m_high / step - static_cast<double>(i)) * step;
        values.append(i == steps ? m_low : value);
    }
    if (m_low < 0 && m_high > 0 && !values.contains(0))
        values.insert(std::upper_bound(values.begin(), values.end(), 0.0, std::greater<>()), 0.0);
    return values;
}

void PlotAxis::layOut() {
    m_ticks.clear();
    const QList<double> values =
        valuesOf(std::clamp(std::floor(m_height / leastDistance), 1.0, mostSteps));
    for (const double value : values) {
        const double part = m_high > m_low ? (m_high - value) / (m_high - m_low) : 1;
        m_ticks.append({textOf(value), std::round(part * m_height), value == 0});
    }
    Q_EMIT ticksChanged();
}

void PlotAxis::measure() {
    const QFontMetricsF words(m_font);
    double gutter = leastGutter;
    const QList<double> values = valuesOf(mostSteps);
    for (const double value : values)
        gutter = std::max(gutter, std::ceil(words.horizontalAdvance(textOf(value))) + gutterGap);
    if (std::exchange(m_gutter, gutter) != gutter)
        Q_EMIT gutterChanged();
}

} // namespace kiv::ui
