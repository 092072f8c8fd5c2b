#include "canvas/SceneText.h"

#include "canvas/CanvasNum.h"
#include "canvas/SceneFigures.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

QString valueOf(const std::optional<QString> &display, std::optional<double> value,
                const QString &unit) {
    if (display && !display->trimmed().isEmpty())
        return display->trimmed();
    return isDrawable(value) ? figureText(*value, unit) : QString();
}

/// A fraction without an end, such as that of a third, gets one: three digits that count, and two
/// decimals at least. Four decimals are somebody's choice and stay.
double shortened(double size) {
    constexpr double chosen = 1e4;
    if (size == 0 || std::round(size * chosen) / chosen == size)
        return size;
    const int decimals = std::max(2, 2 - static_cast<int>(std::floor(std::log10(size))));
    const double scale = std::pow(10.0, decimals);
    return std::round(size * scale) / scale;
}

} // namespace

QString figureText(double value, const QString &unit) {
    const QString number = CanvasNum::out(CanvasNum::decimal(shortened(std::abs(value))));
    const QString sign = value < 0 ? u"−"_s : QString();
    const QString sort = unit.trimmed();
    const bool leads = !sort.isEmpty() && u"$€£¥"_s.contains(sort.front());
    const QStringView behind = QStringView(sort).sliced(leads ? 1 : 0);
    // A currency alone, or a rate in it: "$/mo", "$ a month".
    if (leads && (behind.isEmpty() || behind.front() == u'/' || behind.front() == u' '))
        return sign + sort.front() + number + behind.toString();
    if (sort.isEmpty() || sort == u"%" || sort.startsWith(u'°'))
        return sign + number + sort;
    return sign + number + u'\u00a0' + sort;
}

QString valueText(const ViewSpec::Point &point, const QString &unit) {
    return valueOf(point.display, point.value, unit);
}

QString valueText(const ViewSpec::Item &item, const QString &unit) {
    return valueOf(item.display, item.value, unit);
}

QString artWord(const QString &art) {
    static const QHash<QString, const char *> words{
        {u"report"_s, QT_TRANSLATE_NOOP("Art", "Report")},
        {u"compare"_s, QT_TRANSLATE_NOOP("Art", "Comparison")},
        {u"decision"_s, QT_TRANSLATE_NOOP("Art", "Decision")},
        {u"agents"_s, QT_TRANSLATE_NOOP("Art", "Agents")},
        {u"status"_s, QT_TRANSLATE_NOOP("Art", "Status")},
        {u"funnel"_s, QT_TRANSLATE_NOOP("Art", "Funnel")},
        {u"unit"_s, QT_TRANSLATE_NOOP("Art", "Parts")},
        {u"brief"_s, QT_TRANSLATE_NOOP("Art", "Brief")},
        {u"retro"_s, QT_TRANSLATE_NOOP("Art", "Retro")},
        {u"costs"_s, QT_TRANSLATE_NOOP("Art", "Costs")},
        {u"cashflow"_s, QT_TRANSLATE_NOOP("Art", "Cash flow")},
        {u"okr"_s, QT_TRANSLATE_NOOP("Art", "Objectives")},
        {u"workload"_s, QT_TRANSLATE_NOOP("Art", "Workload")},
        {u"budget"_s, QT_TRANSLATE_NOOP("Art", "Budget")},
    };
    const char *word = words.value(art);
    return word ? QCoreApplication::translate("Art", word) : art;
}

QString sceneTitle(const ViewSpec &spec, const QString &art) {
    const QString title = spec.title.value_or(QString()).trimmed();
    return title.isEmpty() ? artWord(art) : title;
}

} // namespace kiv::canvas
