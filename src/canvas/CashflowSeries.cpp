#include "canvas/CashflowSeries.h"

#include "base/Regex.h"
#include "canvas/SceneFigures.h"
#include "canvas/SceneText.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

namespace {

using Points = QList<ViewSpec::Point>;

/// "Cash in", not "Balance in $".
const Regex &inName() {
    static const Regex words(
        u"^in\\b|\\bin\\s*(?:$|[,(])|inflow|income|revenue|receipt|earn|приход|поступ|доход|выруч",
        Regex::CaseInsensitive);
    return words;
}

const Regex &outName() {
    static const Regex words(u"\\bout\\b|outflow|expens|cost|spend|spent|burn|paid|payment|"
                             u"расход|затрат|отток|трат|списан",
                             Regex::CaseInsensitive);
    return words;
}

const Regex &balanceName() {
    static const Regex words(
        u"balance|cash|\\bbank\\b|runway|остат|баланс|сальдо|денег|деньги|касс",
        Regex::CaseInsensitive);
    return words;
}

bool hasFigures(const ViewSpec::Series &series) {
    return std::any_of(series.points.begin(), series.points.end(),
                       [](const ViewSpec::Point &point) { return isDrawable(point.value); });
}

/// Takes the first series of that name out of `series`.
std::optional<ViewSpec::Series> take(QList<ViewSpec::Series> &series, const Regex &name) {
    for (qsizetype i = 0; i < series.size(); ++i) {
        if (name.contains(series.at(i).name))
            return series.takeAt(i);
    }
    return std::nullopt;
}

/// The figure at a place of the range, found by its label or by its position.
class Lookup {
public:
    Lookup(const Points &points, const QString &unit, bool byLabel)
        : m_points(points), m_unit(unit), m_byLabel(byLabel) {
        for (qsizetype i = 0; i < points.size() && byLabel; ++i)
            m_places.insert(points.at(i).label, i);
    }
    std::optional<PeriodFigure> at(qsizetype position, const QString &label) const {
        const qsizetype place = m_byLabel ? m_places.value(label, -1) : position;
        if (place < 0 || place >= m_points.size() || !isDrawable(m_points.at(place).value))
            return std::nullopt;
        const ViewSpec::Point &point = m_points.at(place);
        return PeriodFigure{*point.value, valueText(point, m_unit)};
    }

private:
    const Points &m_points;
    const QString &m_unit;
    bool m_byLabel;
    QHash<QString, qsizetype> m_places;
};

} // namespace

CashflowSeries::CashflowSeries(const ViewSpec &spec) : m_unit(spec.unit.value_or(QString())) {
    QList<ViewSpec::Series> series = spec.series;
    series.removeIf([](const ViewSpec::Series &one) { return !hasFigures(one); });
    if (series.isEmpty() && !spec.points.isEmpty())
        series.append({QString(), spec.points});
    const bool severalGiven = series.size() > 1;
    if (severalGiven) {
        if (const auto out = take(series, outName())) // "Cost of revenue"
            m_out = out->points;
        if (const auto in = take(series, inName()))
            m_in = in->points;
    }
    if (const auto balance = take(series, balanceName())) {
        m_balance = balance->points;
        if (severalGiven && m_in.isEmpty() && m_out.isEmpty())
            m_soleLine = balance->name;
    } else if (m_in.isEmpty() && m_out.isEmpty() && !series.isEmpty()) {
        m_balance = series.first().points;
        if (severalGiven)
            m_soleLine = series.first().name;
    }
}

QList<Period> CashflowSeries::periods() const {
    const bool byLabel = matchByLabel();
    const Lookup in(m_in, m_unit, byLabel);
    const Lookup out(m_out, m_unit, byLabel);
    const Lookup balance(m_balance, m_unit, byLabel);
    QList<Period> result;
    const QStringList names = labels();
    for (qsizetype i = 0; i < names.size(); ++i) {
        Period period{names.at(i), in.at(i, names.at(i)), out.at(i, names.at(i)),
                      balance.at(i, names.at(i))};
        if (period.out)
            period.out->value = std::abs(period.out->value);
        if (period.in || period.out || period.balance)
            result.append(period);
    }
    return result;
}

bool CashflowSeries::matchByLabel() const {
    for (const Points *points : {&m_in, &m_out, &m_balance}) {
        QSet<QString> seen;
        for (const ViewSpec::Point &point : *points) {
            if (point.label.trimmed().isEmpty() || seen.contains(point.label))
                return false;
            seen.insert(point.label);
        }
    }
    return true;
}

/// The labels of every series in order of appearance, or those of the longest by position.
QStringList CashflowSeries::labels() const {
    QStringList result;
    if (matchByLabel()) {
        QSet<QString> seen;
        for (const Points *points : {&m_in, &m_out, &m_balance}) {
            for (const ViewSpec::Point &point : *points) {
                if (!seen.contains(point.label))
                    result.append(point.label);
                seen.insert(point.label);
            }
        }
        return result;
    }
    const Points &longest =
        *std::max({&m_in, &m_out, &m_balance},
                  [](const Points *a, const Points *b) { return a->size() < b->size(); });
    for (const ViewSpec::Point &point : longest)
        result.append(point.label);
    return result;
}

} // namespace kiv::canvas
