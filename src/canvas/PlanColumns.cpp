#include "canvas/PlanColumns.h"

#include "base/Regex.h"
#include "canvas/FigureUnit.h"
#include "canvas/ProseFigure.h"
#include "canvas/UnitStem.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

qsizetype columnNamed(const QStringList &columns, const Regex &name, qsizetype except = -1) {
    for (qsizetype i = 1; i < columns.size(); ++i) {
        if (i != except && name.contains(columns.at(i)))
            return i;
    }
    return -1;
}

struct Amount {
    double value;
    QString unit;
};

/// Beside another figure a letter apart is no unit: "1.2 M" and "900 K".
bool isLetterApart(const QString &unit) {
    static const QStringList letters{u"K"_s, u"К"_s, u"M"_s, u"B"_s};
    return letters.contains(unit);
}

Amount amountOf(const ProseFigure &figure, const std::optional<ProseFigure> &beside) {
    FigureReader unit(figure.unit);
    // "1.2 B" is a billion beside "900 M", but beside "1 KB" it is bytes.
    const bool isMoney = isLetterApart(figure.unit) && beside && isLetterApart(beside->unit);
    const double factor = takeMultiplier(unit, isMoney);
    return Amount{figure.value * factor, unitStem(currencySign(unit.rest().trimmed().toString()))};
}

/// Amounts of unlike units cannot be measured against each other; one without any may take the
/// other's.
bool areUnlike(const Amount &a, const Amount &b) {
    return !a.unit.isEmpty() && !b.unit.isEmpty() && a.unit != b.unit;
}

/// Behind the names, the columns of which at least half of the filled cells are figures. Rows may
/// be of very unlike length, so their cells are counted row by row.
QList<qsizetype> figureColumns(const QList<QStringList> &rows) {
    struct Count {
        qsizetype filled = 0;
        qsizetype figures = 0;
    };
    QList<Count> counts;
    for (const QStringList &row : rows) {
        counts.resize(std::max(counts.size(), row.size()));
        for (qsizetype i = 1; i < row.size(); ++i) {
            counts[i].filled += row.at(i).trimmed().isEmpty() ? 0 : 1;
            counts[i].figures += proseFigure(row.at(i)) ? 1 : 0;
        }
    }
    QList<qsizetype> columns;
    for (qsizetype i = 1; i < counts.size(); ++i) {
        if (counts.at(i).figures > 0 && counts.at(i).figures * 2 >= counts.at(i).filled)
            columns.append(i);
    }
    return columns;
}

} // namespace

PlanColumns::PlanColumns(const ViewSpec &spec, Order order) {
    static const Regex plan(u"plan|budget|target|goal|limit|план|бюджет|цель|лимит",
                            Regex::CaseInsensitive);
    static const Regex actual(u"actual|fact|spen[dt]|used|current|value|now|result so far|progress|"
                              u"факт|расход|потрачен|текущ|значени|сейчас",
                              Regex::CaseInsensitive);
    m_plan = columnNamed(spec.columns, plan);
    m_actual = columnNamed(spec.columns, actual, m_plan);

    QList<qsizetype> figures = figureColumns(spec.rows);
    figures.removeIf([this](qsizetype i) { return i == m_plan || i == m_actual; });
    const bool actualNamed = m_actual > 0;
    const bool planFirst = order == Order::PlanFirst && figures.size() > 1 && !actualNamed;
    if (m_plan < 0 && planFirst)
        m_plan = figures.takeFirst();
    if (m_actual < 0 && !figures.isEmpty())
        m_actual = figures.takeFirst();
    // Beside a column that is named as what was spent, another one is not yet a plan.
    if (m_plan < 0 && !actualNamed && !figures.isEmpty())
        m_plan = figures.takeFirst();
}

ViewSpec::Point PlanColumns::measured(const QStringList &row) const {
    ViewSpec::Point point{.label = row.value(0).trimmed()};
    const QString actual = actualText(row);
    // A cell says what it means in words and signs, so it is read as prose is.
    const auto spentFigure = proseFigure(actual);
    const auto plannedFigure = proseFigure(planText(row));
    std::optional<Amount> spent;
    if (spentFigure) {
        spent = amountOf(*spentFigure, plannedFigure);
        point.value = spent->value;
    }
    if (!actual.isEmpty())
        point.display = actual;
    if (plannedFigure) {
        const Amount planned = amountOf(*plannedFigure, spentFigure);
        if (!spent || !areUnlike(*spent, planned))
            point.target = planned.value;
    }
    return point;
}

} // namespace kiv::canvas
