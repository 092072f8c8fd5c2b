#include "canvas/ProseFigure.h"

#include "base/Regex.h"
#include "canvas/FigureName.h"
#include "canvas/FigureReader.h"
#include "canvas/FigureUnit.h"
#include "canvas/UnitStem.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

bool isMinus(QChar c) {
    return c == u'-' || c == u'−';
}

/// The upper end of a range behind its lower end: "–20", " to 20", "–$20".
std::optional<double> takeRangeEnd(FigureReader &reader, const QString &currency) {
    const QStringView rest = reader.rest();
    FigureReader ahead(rest);
    ahead.skipSpaces();
    bool isRange = ahead.take(u'–') || ahead.take(u'—') || ahead.take(u'…');
    isRange = isRange || ahead.take(QStringView(u"to ")) || ahead.take(QStringView(u"до "));
    ahead.skipSpaces();
    ahead.take(currency);
    const auto end = isRange ? ahead.number() : std::nullopt;
    if (end)
        reader.skip(rest.size() - ahead.rest().size());
    return end;
}

/// A figure without anything in parentheses behind it.
std::optional<ProseFigure> bareFigure(QStringView text) {
    ProseFigure figure;
    figure.display = text.toString();
    FigureReader reader(text);
    const bool inParentheses = text.startsWith(u'(') && text.endsWith(u')');
    if (inParentheses)
        reader = FigureReader(text.sliced(1).chopped(1));
    if (reader.take(u'~') || reader.take(u'≈'))
        reader.skipSpaces();
    bool negative = inParentheses;
    const auto takeSign = [&reader, &negative] {
        if (isMinus(reader.peek()))
            negative = true;
        if (isMinus(reader.peek()) || reader.peek() == u'+')
            reader.skip(1);
    };
    takeSign();
    figure.unit = takeCurrency(reader);
    if (!figure.unit.isEmpty())
        takeSign();
    const auto number = reader.number();
    if (!number)
        return std::nullopt;
    const bool leadingMoney = !figure.unit.isEmpty();
    const bool mayGroup = reader.mayGroup();
    figure.value = *number;
    double factor = takeMultiplier(reader, leadingMoney);
    const auto end = takeRangeEnd(reader, figure.unit);
    if (end) {
        const double endFactor = takeMultiplier(reader, leadingMoney);
        factor = factor == 1 ? endFactor : factor;
        if (negative || *end * endFactor < *number * factor)
            return std::nullopt;
        figure.value = (*number * factor + *end * endFactor) / 2 / factor;
    }
    figure.value *= negative ? -factor : factor;
    auto unit = unitOfRest(reader.rest());
    if (leadingMoney && unit && currencySign(*unit) == currencySign(figure.unit))
        unit->clear(); // "$1,000 USD"
    if (!unit || (leadingMoney && !unit->isEmpty() && !isRate(*unit)))
        return std::nullopt;
    if (leadingMoney && !unit->isEmpty() && !unit->startsWith(u'/'))
        figure.unit += u' ';
    figure.unit += *unit;
    // "9–17" may be hours and "1.200 €" a thousand: neither is told from its digits alone.
    const bool isBareRange = end && figure.unit.isEmpty() && factor == 1;
    const bool isEitherAmount = mayGroup && factor == 1 && isMoney(figure.unit);
    return isBareRange || isEitherAmount ? std::nullopt : std::optional(figure);
}

/// Where a change behind the figure begins: in parentheses at its end, or an arrow.
struct Aside {
    QStringView figure;
    QStringView text;
};

Aside asideOf(QStringView text) {
    const qsizetype open = text.endsWith(u')') ? text.lastIndexOf(u'(') : -1;
    if (open > 0)
        return {text.first(open).trimmed(), text.sliced(open + 1).chopped(1).trimmed()};
    const auto arrow =
        std::find_if(text.begin(), text.end(), [](QChar c) { return u"▲▼↑↓"_s.contains(c); });
    const qsizetype at = arrow - text.begin();
    if (at == 0 || at == text.size())
        return {text, {}};
    return {text.first(at).trimmed(), text.sliced(at)};
}

} // namespace

QString ProseFigure::unitKey() const {
    return unitStem(unit);
}

bool ProseFigure::mayBeDate() const {
    static const Regex date(u"^(?:(?:19|20)\\d\\d|(?:0?[1-9]|[12]\\d|3[01])\\.(?:0[1-9]|1[0-2]))$");
    return date.contains(display);
}

std::optional<ProseFigure> proseFigure(QStringView text) {
    QStringView figure = text.trimmed();
    constexpr qsizetype longestFigure = 60;
    if (figure.size() > longestFigure)
        return std::nullopt;
    if (figure.endsWith(u'.') || figure.endsWith(u';') || figure.endsWith(u','))
        figure.chop(1);
    const auto [bare, behind] = asideOf(figure);
    auto read = bareFigure(bare);
    const QString aside = behind.toString();
    if (!read)
        return std::nullopt;
    const bool isChange = !aside.isEmpty() && u"+-−–▲▼↑↓"_s.contains(aside.front()) &&
                          std::any_of(aside.begin(), aside.end(), &FigureReader::isDigit);
    (isChange ? read->delta : read->remark) = aside;
    return read;
}

std::optional<ProseFigure> measure(QStringView name, QStringView text) {
    const auto figure = proseFigure(text);
    return figure && figure->unit.isEmpty() && namesNoMeasure(name) ? std::nullopt : figure;
}

} // namespace kiv::canvas
