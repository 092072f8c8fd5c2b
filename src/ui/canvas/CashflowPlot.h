#pragma once

#include "ui/canvas/SceneLayout.h"

#include <QPointF>

#include <optional>

namespace kiv::ui {

/// A period of the plot. Lengths are device-independent pixels.
struct PlotPeriod {
    Q_GADGET
    QML_VALUE_TYPE(plotPeriod)
    Q_PROPERTY(kiv::canvas::CfMonth month MEMBER month)
    Q_PROPERTY(double nameX MEMBER nameX)
    Q_PROPERTY(double nameWidth MEMBER nameWidth)
public:
    canvas::CfMonth month;
    double nameX = 0;     ///< from the left edge of the period's slot
    double nameWidth = 0; ///< 0: there is no room for this name
    friend bool operator==(const PlotPeriod &, const PlotPeriod &) = default;
};

/// The figure of a point of the balance line.
struct PlotLabel {
    Q_GADGET
    QML_VALUE_TYPE(plotLabel)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(double x MEMBER x)
    Q_PROPERTY(double y MEMBER y)
    Q_PROPERTY(double width MEMBER width)
public:
    QString text;
    double x = 0; ///< from the left edge of the first period
    double y = 0; ///< from the top of the plot
    double width = 0;
    friend bool operator==(const PlotLabel &, const PlotLabel &) = default;
};

/// Where the bars, the line and the words of a cash flow lie in a plot. Periods share the width;
/// where that would leave too little for their bars, the plot is wider than its view and scrolls.
/// The width is that of the view, the height that of the plot, the font that of its labels.
class CashflowPlot : public kiv::ui::SceneLayout {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double headroom READ headroom NOTIFY fontChanged)
    Q_PROPERTY(double labelHeight READ labelHeight NOTIFY fontChanged)
    Q_PROPERTY(double barGap READ barGap CONSTANT)
    Q_PROPERTY(double figuresY READ figuresY NOTIFY fontChanged)
    Q_PROPERTY(double figureHeight READ figureHeight NOTIFY fontChanged)
    Q_PROPERTY(double wordsHeight READ wordsHeight NOTIFY belowChanged)
    Q_PROPERTY(double belowHeight READ belowHeight NOTIFY belowChanged)
    Q_PROPERTY(bool scrolls READ scrolls NOTIFY belowChanged)
    Q_PROPERTY(bool showsFigures READ showsFigures NOTIFY belowChanged)
    Q_PROPERTY(bool hasIn READ hasIn NOTIFY seriesChanged)
    Q_PROPERTY(bool hasOut READ hasOut NOTIFY seriesChanged)
    Q_PROPERTY(bool hasBalance READ hasBalance NOTIFY seriesChanged)
    Q_PROPERTY(double zeroY READ zeroY NOTIFY changed)
    Q_PROPERTY(double slot READ slot NOTIFY changed)
    Q_PROPERTY(double barWidth READ barWidth NOTIFY changed)
    Q_PROPERTY(QList<kiv::ui::PlotPeriod> periods READ periods NOTIFY changed)
    Q_PROPERTY(QList<QPointF> line READ line NOTIFY changed)
    Q_PROPERTY(QList<kiv::ui::PlotLabel> labels READ labels NOTIFY changed)
public:
    using SceneLayout::SceneLayout;

    /// Above the plot, for labels.
    double headroom() const { return fit(24); }
    double labelHeight() const { return fit(20); }
    /// Between the bars of a period.
    static double barGap() { return 6; }
    /// Where the figures of the bars begin below the plot, and how high each line of them is.
    double figuresY() const { return fit(34); }
    double figureHeight() const { return fit(18); }
    /// What the names and figures take below the plot.
    double wordsHeight() const;
    /// The same with a scroll bar.
    double belowHeight() const;
    bool scrolls() const { return m_scrolls; }
    /// The figures of the bars stand below their periods where each has the room.
    bool showsFigures() const { return m_showsFigures; }
    bool hasIn() const { return m_hasIn; }
    bool hasOut() const { return m_hasOut; }
    bool hasBalance() const { return m_hasBalance; }
    double zeroY() const;
    /// The width of a period.
    double slot() const { return m_slot; }
    double barWidth() const { return m_barWidth; }
    QList<PlotPeriod> periods() const { return m_periods; }
    QList<QPointF> line() const { return m_line; }
    QList<PlotLabel> labels() const { return m_labels; }

Q_SIGNALS:
    void seriesChanged();
    void belowChanged();

protected:
    void measure() override;
    void layOut() override;

private:
    /// A length for text of the normal size, for larger text as it is.
    double fit(double length) const;
    void divide();
    void placeNames();
    void placeLabels();
    std::optional<PlotLabel> freeLabel(qsizetype point) const;

    bool m_hasIn = false;
    bool m_hasOut = false;
    bool m_hasBalance = false;
    bool m_showsFigures = false;
    bool m_scrolls = false;
    double m_slot = 0;
    double m_barWidth = 0;
    QList<PlotPeriod> m_periods;
    QList<QPointF> m_line;
    QStringList m_figures; ///< of the points of the line
    QList<PlotLabel> m_labels;
};

} // namespace kiv::ui
