#include "ui/canvas/PlotLine.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace kiv::ui {

namespace {

constexpr double lineWidth = 2.5;
constexpr double haloWidth = 6;
constexpr double dotRadius = 4.5;

} // namespace

PlotLine::PlotLine(QQuickItem *parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    m_glide.setStartValue(0.0);
    m_glide.setEndValue(1.0);
    m_glide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_glide, &QVariantAnimation::valueChanged, this, [this] { update(); });
}

template <typename T>
void PlotLine::set(T &member, const T &value) {
    if (member == value)
        return;
    member = value;
    update();
    Q_EMIT lineChanged();
}

/// Whether these points are those of now, at other heights of the same plot.
bool PlotLine::movesBy(const QList<QPointF> &points) const {
    return m_plotHeight == height() &&
           std::equal(points.begin(), points.end(), m_points.begin(), m_points.end(),
                      [](const QPointF &a, const QPointF &b) { return a.x() == b.x(); });
}

void PlotLine::setPoints(const QList<QPointF> &points) {
    if (m_points == points)
        return;
    const bool glides = m_duration > 0 && movesBy(points);
    m_from = shownPoints();
    m_glide.stop();
    m_plotHeight = height();
    set(m_points, points);
    if (glides) {
        m_glide.setDuration(m_duration);
        m_glide.start();
    }
}

QList<QPointF> PlotLine::shownPoints() const {
    if (m_glide.state() != QAbstractAnimation::Running)
        return m_points;
    const double part = m_glide.currentValue().toDouble();
    QList<QPointF> shown = m_points;
    for (qsizetype i = 0; i < shown.size(); ++i)
        shown[i] = m_from.at(i) + (m_points.at(i) - m_from.at(i)) * part;
    return shown;
}

void PlotLine::setOffset(double offset) {
    set(m_offset, offset);
}

void PlotLine::setPlotTop(double plotTop) {
    set(m_plotTop, plotTop);
}

void PlotLine::setColor(const QColor &color) {
    set(m_color, color);
}

void PlotLine::setGround(const QColor &ground) {
    set(m_ground, ground);
}

void PlotLine::paint(QPainter *painter) {
    painter->translate(-m_offset, m_plotTop);
    const QPolygonF line(shownPoints());
    for (const auto &[color, width] : {std::pair(m_ground, haloWidth), {m_color, lineWidth}}) {
        painter->setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(line);
    }
    painter->setPen(QPen(m_color, lineWidth));
    painter->setBrush(m_ground);
    for (const QPointF &point : line)
        painter->drawEllipse(point, dotRadius, dotRadius);
}

} // namespace kiv::ui
