#pragma once

#include <QFont>
#include <QList>
#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// A line of a plot's grid and the value that it stands for.
struct PlotTick {
    Q_GADGET
    QML_VALUE_TYPE(plotTick)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(double y MEMBER y)
    Q_PROPERTY(bool zero MEMBER zero)
public:
    QString text;
    double y = 0; ///< from the top of the plot, in device-independent pixels
    bool zero = false;
    friend bool operator==(const PlotTick &, const PlotTick &) = default;
};

/// The axis of values of a plot from `low` to `high`. Both ends and zero always have a tick; round
/// values between them have one where there is room.
class PlotAxis : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double low MEMBER m_low WRITE setLow NOTIFY rangeChanged REQUIRED)
    Q_PROPERTY(double high MEMBER m_high WRITE setHigh NOTIFY rangeChanged REQUIRED)
    Q_PROPERTY(double height MEMBER m_height WRITE setHeight NOTIFY rangeChanged REQUIRED)
    Q_PROPERTY(QFont font MEMBER m_font WRITE setFont NOTIFY rangeChanged REQUIRED)
    Q_PROPERTY(QList<kiv::ui::PlotTick> ticks READ ticks NOTIFY ticksChanged)
    Q_PROPERTY(double gutter READ gutter NOTIFY gutterChanged)
public:
    using QObject::QObject;

    void setLow(double low);
    void setHigh(double high);
    /// Of the plot.
    void setHeight(double height);
    /// Of the figures.
    void setFont(const QFont &font);

    /// From the top down.
    const QList<PlotTick> &ticks() const { return m_ticks; }
    /// The room that the figures take to the left of the plot, whatever its height.
    double gutter() const { return m_gutter; }

Q_SIGNALS:
    void rangeChanged();
    void ticksChanged();
    void gutterChanged();

private:
    template <typename T>
    void set(T &member, const T &value);
    QList<double> valuesOf(double mostSteps) const;
    void layOut();
    void measure();

    double m_low = 0;
    double m_high = 0;
    double m_height = 0;
    QFont m_font;
    QList<PlotTick> m_ticks;
    double m_gutter = 0;
};

} // namespace kiv::ui
