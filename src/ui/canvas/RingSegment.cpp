#include "ui/canvas/RingSegment.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kiv::ui {

namespace {

constexpr double fullCircle = 2 * std::numbers::pi;
constexpr double leastArc = 1; ///< of a part that is smaller than the gap, in pixels
constexpr double sixteenths = 360 * 16;

} // namespace

RingSegment::RingSegment(QQuickItem *parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

template <typename T>
void RingSegment::set(T &member, const T &value) {
    if (member == value)
        return;
    member = value;
    update();
    Q_EMIT shapeChanged();
}

void RingSegment::setStart(double start) {
    set(m_start, start);
}

void RingSegment::setSweep(double sweep) {
    set(m_sweep, sweep);
}

void RingSegment::setThickness(double thickness) {
    set(m_thickness, thickness);
}

void RingSegment::setGap(double gap) {
    set(m_gap, gap);
}

void RingSegment::setColor(const QColor &color) {
    set(m_color, color);
}

double RingSegment::radius() const {
    return (std::min(width(), height()) - m_thickness) / 2;
}

void RingSegment::paint(QPainter *painter) {
    const double r = radius();
    if (m_sweep <= 0 || r <= 0)
        return;
    // A part that is the whole has no neighbour to keep away from.
    const double pixel = 1 / (fullCircle * r);
    const double arc =
        m_sweep >= 1 ? 1 : std::max(m_sweep - m_gap * pixel, std::min(m_sweep, leastArc * pixel));
    const QPointF middle(width() / 2, height() / 2);
    painter->setPen(QPen(m_color, m_thickness, Qt::SolidLine, Qt::FlatCap));
    painter->drawArc(QRectF(middle - QPointF(r, r), QSizeF(2 * r, 2 * r)),
                     static_cast<int>(std::lround((0.25 - m_start) * sixteenths)),
                     -static_cast<int>(std::lround(arc * sixteenths)));
}

bool RingSegment::contains(const QPointF &point) const {
    const QPointF from = point - QPointF(width() / 2, height() / 2);
    const double distance = std::hypot(from.x(), from.y());
    const double turn = std::atan2(from.x(), -from.y()) / fullCircle; // 0 at the top, clockwise
    const double at = turn < 0 ? turn + 1 : turn;
    return std::abs(distance - radius()) <= m_thickness / 2 && at >= m_start &&
           at < m_start + m_sweep;
}

} // namespace kiv::ui
