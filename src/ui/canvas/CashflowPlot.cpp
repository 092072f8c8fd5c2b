#include "ui/canvas/CashflowPlot.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace kiv::ui {

namespace {

constexpr double barLeast = 12;
constexpr double barMost = 32;
constexpr double slotPadding = 6; ///< at the least, between the bars of two periods
constexpr double nameMost = 96;   ///< a longer name is cut where periods are narrow
constexpr double nameGap = 8;
constexpr double nameRoom = 30; ///< below the plot, for names alone
constexpr double scrollRoom = 14;
constexpr double figureGap = 6;
constexpr double labelLeast = 38;
constexpr int normalText = 12; ///< pixels
constexpr double labelPadding = 8;
constexpr double labelDistance = 8; ///< from its point
constexpr double labelGap = 4;
constexpr qsizetype mostLabelled = 12; ///< of more periods only the ends and extremes have labels

bool overlap(const PlotLabel &a, const PlotLabel &b, double height) {
    return a.x < b.x + b.width + labelGap && b.x < a.x + a.width + labelGap &&
           std::abs(a.y - b.y) < height + labelGap;
}

} // namespace

void CashflowPlot::measure() {
    const auto any = [this](QString canvas::CfMonth::*figure) {
        return std::ranges::any_of(scene().cfMonths, [figure](const canvas::CfMonth &month) {
            return !(month.*figure).isEmpty();
        });
    };
    m_hasIn = any(&canvas::CfMonth::in);
    m_hasOut = any(&canvas::CfMonth::out);
    m_hasBalance = any(&canvas::CfMonth::balance);
    Q_EMIT seriesChanged();
    Q_EMIT belowChanged();
}

double CashflowPlot::fit(double length) const {
    return std::round(length * std::max(1.0, font().pixelSize() / double(normalText)));
}

double CashflowPlot::zeroY() const {
    const double range = scene().cfHigh - scene().cfLow;
    return range > 0 ? std::round(scene().cfHigh / range * height()) : height();
}

double CashflowPlot::belowHeight() const {
    return wordsHeight() + (m_scrolls ? scrollRoom : 0);
}

double CashflowPlot::wordsHeight() const {
    const int lines = m_showsFigures ? (m_hasIn ? 1 : 0) + (m_hasOut ? 1 : 0) : 0;
    return lines > 0 ? figuresY() + lines * figureHeight() : fit(nameRoom);
}

void CashflowPlot::layOut() {
    divide();
    m_periods.clear();
    m_line.clear();
    m_figures.clear();
    for (const canvas::CfMonth &month : scene().cfMonths) {
        m_periods.append({.month = month});
        if (month.balance.isEmpty())
            continue;
        m_line.append({(static_cast<double>(m_periods.size()) - 0.5) * m_slot,
                       (100 - month.balY) / 100 * height()});
        m_figures.append(month.balance);
    }
    placeNames();
    placeLabels();
    Q_EMIT changed();
}

/// How wide the periods and their bars are.
void CashflowPlot::divide() {
    const auto &months = scene().cfMonths;
    const double bars = m_hasIn && m_hasOut ? 2 : 1;
    const double taken = (bars - 1) * barGap() + slotPadding;
    const auto count = static_cast<double>(std::max<qsizetype>(1, months.size()));
    m_slot = std::max(std::floor(width() / count), bars * barLeast + taken);
    const QFontMetricsF words(font());
    const bool fits = std::all_of(months.begin(), months.end(), [&](const canvas::CfMonth &month) {
        return words.horizontalAdvance(month.in) + figureGap <= m_slot &&
               words.horizontalAdvance(month.out) + figureGap <= m_slot;
    });
    const bool wider = m_slot * count > width();
    if (std::exchange(m_showsFigures, fits) != fits || m_scrolls != wider) {
        m_scrolls = wider;
        Q_EMIT belowChanged();
    }
    m_barWidth = std::clamp(std::floor((m_slot - taken) / bars * 0.8), barLeast, barMost);
}

/// The first and the last period are named in any case, those between them at even distances.
void CashflowPlot::placeNames() {
    if (m_periods.isEmpty())
        return;
    const QFontMetricsF words(font());
    double widest = 0;
    for (const PlotPeriod &period : std::as_const(m_periods))
        widest = std::max(widest, words.horizontalAdvance(period.month.name));
    const double wanted = std::min(std::ceil(widest), nameMost) + nameGap;
    const auto stride = static_cast<qsizetype>(std::max(1.0, std::ceil(wanted / m_slot)));
    const qsizetype last = m_periods.size() - 1;
    const double right = static_cast<double>(m_periods.size()) * m_slot;
    const double most =
        std::min(static_cast<double>(stride) * m_slot, last > 0 ? right / 2 : right) - nameGap;
    const auto place = [&](qsizetype i, double begin, double end) {
        PlotPeriod &period = m_periods[i];
        const double slotX = static_cast<double>(i) * m_slot;
        const double width =
            std::min(std::ceil(words.horizontalAdvance(period.month.name)) + 1, most);
        const double x = std::clamp(slotX + (m_slot - width) / 2, 0.0, right - width);
        if (x < begin || x + width > end)
            return x;
        period.nameX = x - slotX;
        period.nameWidth = width;
        return x;
    };
    const double lastName = place(last, 0, right);
    double end = 0;
    for (qsizetype i = 0; i < last; i += stride) {
        const double x = place(i, end, lastName - nameGap);
        end = x + m_periods.at(i).nameWidth + nameGap;
    }
}

/// A label above its point, or below it where it would leave the plot or meet another label.
std::optional<PlotLabel> CashflowPlot::freeLabel(qsizetype point) const {
    const QString &text = m_figures.at(point);
    const QPointF at = m_line.at(point);
    const double right = static_cast<double>(m_periods.size()) * m_slot;
    PlotLabel label{.text = text};
    label.width = std::max(labelLeast, std::ceil(QFontMetricsF(font()).horizontalAdvance(text)) +
                                           2 * labelPadding);
    label.x =
        std::round(std::clamp(at.x() - label.width / 2, 0.0, std::max(0.0, right - label.width)));
    for (const double y : {at.y() - labelDistance - labelHeight(), at.y() + labelDistance}) {
        label.y = std::round(y);
        if (label.y >= -headroom() && label.y + labelHeight() <= height() &&
            std::none_of(m_labels.cbegin(), m_labels.cend(), [&](const PlotLabel &other) {
                return overlap(label, other, labelHeight());
            }))
            return label;
    }
    return std::nullopt;
}

/// Labels do not overlap: the last figure matters most, then the first, the highest, the lowest.
void CashflowPlot::placeLabels() {
    m_labels.clear();
    if (m_line.isEmpty())
        return;
    const auto [lowest, highest] =
        std::minmax_element(m_line.begin(), m_line.end(),
                            [](const QPointF &a, const QPointF &b) { return a.y() > b.y(); });
    QList<qsizetype> points{m_line.size() - 1, 0, std::distance(m_line.begin(), highest),
                            std::distance(m_line.begin(), lowest)};
    for (qsizetype i = 0; i < m_line.size() && m_line.size() <= mostLabelled; ++i)
        points.append(i);
    QList<qsizetype> done;
    for (const qsizetype point : std::as_const(points)) {
        if (done.contains(point))
            continue;
        done.append(point);
        if (const auto label = freeLabel(point))
            m_labels.append(*label);
    }
}

} // namespace kiv::ui
