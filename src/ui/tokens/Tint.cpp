#include "ui/tokens/Tint.h"

#include <cmath>

namespace kiv::ui {

namespace {

constexpr QRgb ink = 0xff141722;
constexpr QRgb white = 0xffffffff;
constexpr QRgb darkSurface = 0xff181b25;
constexpr double readable = 5.0;

float mixed(float from, float to, float share) {
    return from + (to - from) * share;
}

/// `base` with `share` of `other` in it.
QColor mix(const QColor &base, const QColor &other, float share) {
    return QColor::fromRgbF(mixed(base.redF(), other.redF(), share),
                            mixed(base.greenF(), other.greenF(), share),
                            mixed(base.blueF(), other.blueF(), share));
}

double linear(float channel) {
    const double value = channel;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

QColor Tint::onFill(const QColor &fill) {
    return contrast(fill, QColor(white)) >= 2.8 ? QColor(white) : QColor(ink);
}

QColor Tint::ground(const QColor &base, bool dark) {
    return dark ? mix(QColor(darkSurface), base, 0.18F) : mix(QColor(white), base, 0.11F);
}

QColor Tint::text(const QColor &base, bool dark) {
    const QColor back = ground(base, dark);
    const QColor end(dark ? white : ink);
    for (float share = 0; share < 1; share += 0.05F) {
        const QColor candidate = mix(base, end, share);
        if (contrast(candidate, back) >= readable)
            return candidate;
    }
    return end;
}

} // namespace kiv::ui
