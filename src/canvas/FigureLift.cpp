#include "canvas/FigureLift.h"

#include "base/JVal.h"
#include "base/Regex.h"
#include "canvas/FigureName.h"
#include "canvas/SceneFigures.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

bool shareAnAxis(const QList<LiftedLine> &lines) {
    QStringList names;
    for (const LiftedLine &line : lines) {
        if (!line.figure || !line.figure->delta.isEmpty() ||
            line.figure->unitKey() != lines.first().figure->unitKey())
            return false;
        if (!isTotalName(line.name))
            names.append(line.name);
    }
    return lines.size() <= mostBars && addUp(names);
}

QString keyOf(const ViewSpec &spec, const QList<LiftedLine> &lines) {
    JVal::Array texts{JVal::str(spec.kind)};
    for (const LiftedLine &line : lines)
        texts.append(JVal::str(line.name + u": "_s + line.text));
    return JVal::arr(texts).canonical();
}

/// The value without the punctuation of its line; a point may end an abbreviation: "5 тыс."
QString valueOf(const LiftedLine &line) {
    static const Regex end(u"[;,]$|(?<=\\d|[%$€₽)]|\\p{L}{5})\\.$");
    return line.figure ? end.replaceAll(line.text, u"") : line.text;
}

ViewSpec table(const QList<LiftedLine> &lines) {
    ViewSpec spec{.kind = u"table"_s, .columns = {u"Name"_s, u"Value"_s}};
    for (const LiftedLine &line : lines)
        spec.rows.append({line.name, valueOf(line)});
    spec.jsonKey = keyOf(spec, lines);
    return spec;
}

} // namespace

qsizetype figureCount(const QList<LiftedLine> &lines) {
    qsizetype figures = 0;
    qsizetype dates = 0;
    for (const LiftedLine &line : lines) {
        figures += line.figure ? 1 : 0;
        dates += line.figure && line.figure->mayBeDate() ? 1 : 0;
    }
    return figures > dates ? figures : 0;
}

bool areMarks(const QList<LiftedLine> &lines, const std::optional<QString> &heading) {
    return heading && headsNoMeasure(*heading) &&
           std::all_of(lines.begin(), lines.end(), [](const LiftedLine &line) {
               return !line.figure || line.figure->unit.isEmpty();
           });
}

ViewSpec barsOrCards(const QList<LiftedLine> &lines) {
    if (!shareAnAxis(lines))
        return cards(lines);
    ViewSpec spec{.kind = u"hbar"_s};
    for (const LiftedLine &line : lines) {
        ViewSpec::Point point{
            .label = line.name, .value = line.figure->value, .display = line.figure->display};
        if (!line.figure->remark.isEmpty())
            point.hint = line.figure->remark;
        spec.points.append(point);
    }
    // The unit of the largest is the likeliest to be a plural, as the total's has to be.
    const auto largest =
        std::max_element(lines.begin(), lines.end(), [](const LiftedLine &a, const LiftedLine &b) {
            return a.figure->value < b.figure->value;
        });
    if (!largest->figure->unit.isEmpty())
        spec.unit = largest->figure->unit;
    spec.jsonKey = keyOf(spec, lines);
    return spec;
}

ViewSpec cards(const QList<LiftedLine> &lines) {
    if (lines.size() > mostBars)
        return table(lines);
    ViewSpec spec{.kind = u"kpi"_s};
    for (const LiftedLine &line : lines) {
        ViewSpec::Item item{.label = line.name};
        if (!line.text.isEmpty())
            item.display = valueOf(line);
        if (line.figure) {
            item.value = line.figure->value;
            if (!line.figure->delta.isEmpty()) {
                item.display = line.figure->display;
                item.delta = line.figure->delta;
            }
        }
        spec.items.append(item);
    }
    spec.jsonKey = keyOf(spec, lines);
    return spec;
}

} // namespace kiv::canvas
