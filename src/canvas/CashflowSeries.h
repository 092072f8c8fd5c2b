#pragma once

#include "canvas/ViewSpec.h"

#include <QList>
#include <QString>

#include <optional>

namespace kiv::canvas {

/// A figure of a period, and how it is shown.
struct PeriodFigure {
    double value = 0;
    QString text;
};

/// One period of a cash flow; what the answer does not tell of it is absent.
struct Period {
    QString name;
    std::optional<PeriodFigure> in;
    std::optional<PeriodFigure> out; ///< as a size, also where the answer writes it below zero
    std::optional<PeriodFigure> balance;
};

/// Which of the series of an answer is what came in, what went out and the balance.
class CashflowSeries {
public:
    explicit CashflowSeries(const ViewSpec &spec);

    /// In the answer's order. Series are matched by their labels, or by position where labels are
    /// missing or stand twice. Periods of which nothing can be drawn are left out.
    QList<Period> periods() const;

    /// The name of the one series that is drawn of several; empty when all are.
    const QString &soleLine() const { return m_soleLine; }

private:
    using Points = QList<ViewSpec::Point>;

    bool matchByLabel() const;
    QStringList labels() const;

    QString m_unit;
    Points m_in;
    Points m_out;
    Points m_balance;
    QString m_soleLine;
};

} // namespace kiv::canvas
