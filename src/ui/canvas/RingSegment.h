#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A part of a ring that starts at the top and goes around clockwise. It fills the ring's square
/// but only its own part of it takes the pointer.
class RingSegment : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double start MEMBER m_start WRITE setStart NOTIFY shapeChanged)
    Q_PROPERTY(double sweep MEMBER m_sweep WRITE setSweep NOTIFY shapeChanged)
    Q_PROPERTY(double thickness MEMBER m_thickness WRITE setThickness NOTIFY shapeChanged)
    Q_PROPERTY(double gap MEMBER m_gap WRITE setGap NOTIFY shapeChanged)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor NOTIFY shapeChanged)
public:
    explicit RingSegment(QQuickItem *parent = nullptr);

    /// Where it begins and how far it goes, as fractions of the ring.
    void setStart(double start);
    void setSweep(double sweep);
    /// Of the ring, and the space between neighbours; device-independent pixels.
    void setThickness(double thickness);
    void setGap(double gap);
    void setColor(const QColor &color);

    void paint(QPainter *painter) override;
    Q_INVOKABLE bool contains(const QPointF &point) const override;

Q_SIGNALS:
    void shapeChanged();

private:
    template <typename T>
    void set(T &member, const T &value);
    double radius() const; ///< of the middle of the ring's stroke

    double m_start = 0;
    double m_sweep = 0;
    double m_thickness = 28;
    double m_gap = 3;
    QColor m_color;
};

} // namespace kiv::ui
