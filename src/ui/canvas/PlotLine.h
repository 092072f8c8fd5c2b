#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQuickPaintedItem>
#include <QVariantAnimation>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A line through the points of a plot, with a halo that sets it off from what it crosses. It
/// covers what is seen of the plot; `offset` is how far the plot is scrolled. Points that move up
/// or down in a plot that stays as it is glide there.
class PlotLine : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QPointF> points MEMBER m_points WRITE setPoints NOTIFY lineChanged)
    /// Of the glide, in milliseconds; 0 for none.
    Q_PROPERTY(int duration MEMBER m_duration NOTIFY durationChanged)
    Q_PROPERTY(double offset MEMBER m_offset WRITE setOffset NOTIFY lineChanged)
    Q_PROPERTY(double plotTop MEMBER m_plotTop WRITE setPlotTop NOTIFY lineChanged)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY lineChanged)
    Q_PROPERTY(QColor ground MEMBER m_ground WRITE setGround NOTIFY lineChanged)
public:
    explicit PlotLine(QQuickItem *parent = nullptr);

    /// In coordinates of the plot, from left to right.
    void setPoints(const QList<QPointF> &points);
    /// Where they are drawn now.
    QList<QPointF> shownPoints() const;
    void setOffset(double offset);
    /// Where the plot begins, below the upper edge.
    void setPlotTop(double plotTop);
    void setColor(const QColor &color);
    /// Of the halo and of the core of each point.
    void setGround(const QColor &ground);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lineChanged();
    void durationChanged();

private:
    template <typename T>
    void set(T &member, const T &value);

    bool movesBy(const QList<QPointF> &points) const;

    QList<QPointF> m_points;
    QList<QPointF> m_from;   ///< where the glide begins; of as many points
    double m_plotHeight = 0; ///< in which the points lie
    int m_duration = 0;
    QVariantAnimation m_glide;
    double m_offset = 0;
    double m_plotTop = 0;
    QColor m_color;
    QColor m_ground;
};

} // namespace kiv::ui
