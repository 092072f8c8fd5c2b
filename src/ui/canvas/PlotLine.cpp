#include "ui/canvas/PlotLine.h"

#include <QPainter>
#include <QPolygonF>

namespace kiv::ui {

namespace {

constexpr double lineWidth = 2.5;
constexpr double haloWidth = 6;
constexpr double dotRadius = 4.5;

} // namespace

PlotLine::PlotLine(QQuickItem *parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

template <typename T>
void PlotLine::set(T &member, const T &value) {
    if (member == value)
        return;
    member = value;
    update();
    Q_EMIT lineChanged();
}

void PlotLine::setPoints(const QList<QPointF> &points) {
    set(m_points, points);
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
    const QPolygonF line(m_points);
    for (const auto &[color, width] : {std::pair(m_ground, haloWidth), {m_color, lineWidth}}) {
        painter->setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(line);
    }
    painter->setPen(QPen(m_color, lineWidth));
    painter->setBrush(m_ground);
    for (const QPointF &point : m_points)
        painter->drawEllipse(point, dotRadius, dotRadius);
}

} // namespace kiv::ui
