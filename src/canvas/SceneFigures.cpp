#include "canvas/SceneFigures.h"

#include "base/Regex.h"
#include "canvas/CanvasNum.h"
#include "canvas/ProseFigure.h"
#include "canvas/SceneText.h"
#include "canvas/TextCues.h"
#include "canvas/UnitStem.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

constexpr double largestFigure = 1e15;
constexpr double smallestFigure = 1e-9;
constexpr double largestPercent = 1e6;

ViewSpec::Point pointOf(const ViewSpec::Item &item) {
    return {.label = item.label, .value = item.value, .display = item.display};
}

/// What is written around the figure of a display text, its plural and words for thousands aside.
QString unitWord(const QString &display) {
    static const QStringList multipliers{u"k"_s, u"к"_s, u"m"_s, u"b"_s, u"млн"_s, u"млрд"_s};
    QString word = display.toLower();
    word.removeIf([](QChar c) { return c.isDigit() || c.isSpace() || u".,_+-−"_s.contains(c); });
    for (const QString &multiplier : multipliers) {
        if (word == multiplier ||
            (word.size() > 1 && !word.front().isLetter() && word.sliced(1) == multiplier))
            word.chop(multiplier.size());
    }
    return unitStem(word);
}

/// Whether the figure that a text shows is a percentage; one in an aside, "$640 (64%)" or "18 of 20
/// (90%)", does not make it one.
bool showsPercentage(const QString &display) {
    static const Regex firstNumber(u"^\\D*\\d[\\d.,\\s]*%");
    if (!display.contains(u'%'))
        return false;
    const auto figure = proseFigure(display);
    return figure ? figure->unit.startsWith(u'%') : firstNumber.contains(display);
}

int decimalsOf(double value) {
    const QString text = CanvasNum::decimal(value);
    const qsizetype point = text.indexOf(u'.');
    return point < 0 || text.contains(u'e') ? 0 : static_cast<int>(text.size() - point - 1);
}

} // namespace

bool isDrawable(const std::optional<double> &value) {
    if (!value || !std::isfinite(*value))
        return false;
    const double size = std::abs(*value);
    return size == 0 || (size >= smallestFigure && size <= largestFigure);
}

std::optional<int> wholePercent(double percent) {
    if (!std::isfinite(percent) || std::abs(percent) > largestPercent)
        return std::nullopt;
    return static_cast<int>(std::round(percent));
}

QString shareText(double part, double whole) {
    const double percent = part / whole * 100;
    if (percent > 0 && percent < 0.1)
        return u"<0.1%"_s;
    if (percent > 99.9 && percent < 100)
        return u">99.9%"_s;
    const bool extreme = (percent > 0 && percent < 1) || (percent > 99 && percent < 100);
    const double tenths = std::round(percent * 10) / 10;
    return CanvasNum::decimal(extreme ? tenths : std::round(percent)) + u'%';
}

QList<ViewSpec::Point> pointsOf(const ViewSpec &spec) {
    if (!spec.points.isEmpty())
        return spec.points;
    if (spec.series.size() == 1)
        return spec.series.first().points;
    QList<ViewSpec::Point> points;
    for (const ViewSpec::Item &item : spec.items)
        points.append(pointOf(item));
    return points;
}

QString unitOf(const ViewSpec &spec, const QList<ViewSpec::Point> &points) {
    if (spec.unit && !spec.unit->trimmed().isEmpty())
        return spec.unit->trimmed();
    QString common;
    for (const ViewSpec::Point &point : points) {
        const QString display = point.display.value_or(QString());
        const QString sign = CanvasEngine::unitToken(display);
        const bool isAside = sign == u"%" && !showsPercentage(display);
        if (sign.isEmpty() || isAside || (!common.isEmpty() && sign != common))
            return {};
        common = sign;
    }
    return common;
}

bool isPercentage(const ViewSpec::Point &point, const QString &unit) {
    return unit == u"%" || showsPercentage(point.display.value_or(QString()));
}

double percentageOf(const ViewSpec::Point &point) {
    const double value = point.value.value_or(0);
    const auto shown = proseFigure(point.display.value_or(QString()));
    const bool isFraction = shown && value > 0 && value <= 1 && shown->value > value &&
                            std::abs(shown->value - value * 100) <= 0.5;
    return isFraction ? value * 100 : value;
}

double sumOf(const QList<double> &values) {
    int decimals = 0;
    for (const double value : values)
        decimals = std::max(decimals, decimalsOf(value));
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    const double scale = std::pow(10.0, std::min(decimals, 6));
    return std::round(sum * scale) / scale;
}

bool addUp(const QStringList &labels) {
    static const Regex contained(u"revenue|income|profit|margin|latency|response|uptime|"
                                 u"\\bp\\d\\d\\b|\\b(net|gross|balance|average|mean|"
                                 u"median|total|rate|score)\\b|"
                                 u"выручк|доход|прибыл|марж|чист|остат|баланс|средн|итог|всего",
                                 Regex::CaseInsensitive);
    static const Regex stage(u"visit|sign-?\\s?up|\\btrial|\\blead|\\bpaid|paying|activat|purchas|"
                             u"посетит|визит|регистрац|проб|лид[ыов]|оплат|покуп",
                             Regex::CaseInsensitive);
    const auto stages = std::count_if(labels.begin(), labels.end(),
                                      [](const QString &label) { return stage.contains(label); });
    return stages < 2 && std::none_of(labels.begin(), labels.end(), [](const QString &label) {
               return contained.contains(label);
           });
}

bool isRelative(const QString &heading) {
    static const Regex relative(u"price|\\brates?\\b|average|\\bavg|\\bmean\\b|median|score|"
                                u"rating|grade|velocity|speed|latency|response time|\\bages?\\b|"
                                u"temperature|ranking|balance|runway|"
                                u"\\bцен[аы]\\b|тариф|средн|медиан|балл|оценк|рейтинг|скорост|"
                                u"возраст|остат|баланс|сальдо|задержк|время ответа|температур",
                                Regex::CaseInsensitive);
    return relative.contains(heading);
}

QString totalText(const QList<ViewSpec::Point> &points, const QString &unit) {
    QList<double> values;
    QStringList labels;
    QSet<QString> units;
    for (const ViewSpec::Point &point : points) {
        const QString written = unit + point.display.value_or(QString());
        const bool isTemperature = written.contains(u'°');
        const bool isScore = unit.startsWith(u'/');
        if (!isDrawable(point.value) || *point.value < 0 || isPercentage(point, unit) ||
            isTemperature || isScore)
            return {};
        values.append(*point.value);
        labels.append(point.label);
        units.insert(unitWord(point.display.value_or(QString())));
    }
    if (values.size() < 2 || units.size() > 1 || !addUp(labels))
        return {};
    return figureText(sumOf(values), unit);
}

bool isTotalName(const QString &name) {
    static const QStringList words{u"total"_s,   u"totals"_s, u"grand total"_s, u"sum"_s,
                                   u"overall"_s, u"итого"_s,  u"всего"_s,       u"сумма"_s};
    constexpr qsizetype longest = 40;
    if (name.size() > longest)
        return false;
    QString plain = CanvasEngine::stripInline(name).toLower();
    while (plain.endsWith(u':') || plain.endsWith(u'.'))
        plain.chop(1);
    return words.contains(plain);
}

} // namespace kiv::canvas
