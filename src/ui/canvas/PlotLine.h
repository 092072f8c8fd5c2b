#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A line through the points of a plot, with a halo that sets it off from what it crosses. It
/// covers what is seen of the plot; `offset` is how far the plot is scrolled.
class PlotLine : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QPointF> points MEMBER m_points WRITE setPoints NOTIFY lineChanged)
    Q_PROPERTY(double offset MEMBER m_offset WRITE setOffset NOTIFY lineChanged)
    Q_PROPERTY(double plotTop MEMBER m_plotTop WRITE setPlotTop NOTIFY lineChanged)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY lineChanged)
    Q_PROPERTY(QColor ground MEMBER m_ground WRITE setGround NOTIFY lineChanged)
public:
    explicit PlotLine(QQuickItem *parent = nullptr);

    /// In coordinates of the plot, from left to right.
    void setPoints(const QList<QPointF> &points);
    void setOffset(double offset);
    /// Where the plot begins, below the upper edge.
    void setPlotTop(double plotTop);
    void setColor(const QColor &color);
    /// Of the halo and of the core of each point.
    void setGround(const QColor &ground);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lineChanged();

private:
    template <typename T>
    void set(T &member, const T &value);

    QList<QPointF> m_points;
    double m_offset = 0;
    double m_plotTop = 0;
    QColor m_color;
    QColor m_ground;
};

} // namespace kiv::ui
