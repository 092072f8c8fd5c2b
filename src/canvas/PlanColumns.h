#pragma once

#include "canvas/ViewSpec.h"

#include <QStringList>

namespace kiv::canvas {

/// Which columns of a table hold what was planned and what came of it. They are told by their
/// names; where neither is named they are the first two columns of figures, as `order` says.
class PlanColumns {
public:
    enum class Order { PlanFirst, ActualFirst };
    explicit PlanColumns(const ViewSpec &spec, Order order = Order::ActualFirst);

    bool hasActual() const { return m_actual > 0; }
    /// The row as a point: value is what came of it, target what was planned.
    ViewSpec::Point measured(const QStringList &row) const;
    /// The cells as written.
    QString planText(const QStringList &row) const { return row.value(m_plan).trimmed(); }
    QString actualText(const QStringList &row) const { return row.value(m_actual).trimmed(); }

private:
    qsizetype m_plan = -1;
    qsizetype m_actual = -1;
};

} // namespace kiv::canvas
