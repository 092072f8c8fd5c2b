#include "canvas/SpecReader.h"

#include "canvas/CanvasNum.h"
#include "canvas/TextCues.h"

#include <algorithm>
#include <initializer_list>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

using Object = JVal::Object;

const JVal *member(const Object &object, const QString &key) {
    const auto found = object.constFind(key);
    return found == object.cend() ? nullptr : &found.value();
}

std::optional<QString> text(const Object &object, const QString &key) {
    const JVal *value = member(object, key);
    const QString *string = value ? value->asStr() : nullptr;
    return string ? std::optional(*string) : std::nullopt;
}

std::optional<QString> firstText(const Object &object, std::initializer_list<QString> keys) {
    for (const QString &key : keys) {
        if (auto found = text(object, key))
            return found;
    }
    return std::nullopt;
}

JVal::Array array(const Object &object, const QString &key) {
    const JVal *value = member(object, key);
    const JVal::Array *elements = value ? value->asArr() : nullptr;
    return elements ? *elements : JVal::Array();
}

std::optional<double> figure(const Object &object, const QString &key) {
    const JVal *value = member(object, key);
    if (!value)
        return std::nullopt;
    if (const double *number = value->asNum())
        return *number;
    const QString *string = value->asStr();
    return string ? CanvasNum::parse(*string) : std::nullopt;
}

QList<ViewSpec::Point> points(const Object &object) {
    QList<ViewSpec::Point> result;
    for (const JVal &element : array(object, u"points"_s))
        result.append(CanvasEngine::point(element));
    return result;
}

QList<ViewSpec::Series> readSeries(const Object &object) {
    QList<ViewSpec::Series> result;
    for (const JVal &element : array(object, u"series"_s)) {
        if (const Object *one = element.asObj()) {
            const QString number = u"Series %1"_s.arg(result.size() + 1);
            result.append({text(*one, u"name"_s).value_or(number), points(*one)});
        }
    }
    return result;
}

/// One list serves tables and boards: a column that carries points is a board's.
void readColumns(const Object &object, ViewSpec &spec) {
    for (const JVal &element : array(object, u"columns"_s)) {
        if (const QString *plainName = element.asStr()) {
            spec.columns.append(*plainName);
        } else if (const Object *column = element.asObj()) {
            const QString number = u"Column %1"_s.arg(spec.columns.size() + 1);
            const QString name = firstText(*column, {u"name"_s, u"label"_s}).value_or(number);
            spec.columns.append(name);
            const JVal *cards = member(*column, u"points"_s);
            if (cards && cards->asArr())
                spec.boardCols.append({name, points(*column)});
        }
    }
}

QString cellText(const JVal &cell) {
    if (const QString *string = cell.asStr())
        return *string;
    const double *number = cell.asNum();
    return number ? CanvasNum::out(CanvasNum::decimal(*number)) : QString();
}

QList<QStringList> readRows(const Object &object) {
    QList<QStringList> result;
    for (const JVal &element : array(object, u"rows"_s)) {
        if (const JVal::Array *cells = element.asArr()) {
            QStringList row;
            for (const JVal &cell : *cells)
                row.append(cellText(cell));
            result.append(row);
        }
    }
    return result;
}

bool hasPoints(const QList<ViewSpec::Series> &series) {
    return std::any_of(series.begin(), series.end(),
                       [](const ViewSpec::Series &one) { return !one.points.isEmpty(); });
}

} // namespace

CanvasEngine::LabelledText CanvasEngine::splitLabel(QStringView source) {
    const QString plain = stripInline(source);
    for (const QString &separator : {u" — "_s, u" – "_s, u": "_s}) {
        const qsizetype at = plain.indexOf(separator);
        if (at >= 0)
            return {plain.first(at).trimmed(), plain.sliced(at + separator.size()).trimmed()};
    }
    return {plain, std::nullopt};
}

ViewSpec::Point CanvasEngine::point(const JVal &json) {
    ViewSpec::Point point;
    if (const QString *string = json.asStr()) {
        const LabelledText split = splitLabel(*string);
        point.label = split.label;
        point.display = split.value;
        if (split.value) {
            point.value = CanvasNum::parse(*split.value);
            if (!point.value)
                point.status = statusWord(*split.value);
        }
    } else if (const double *number = json.asNum()) {
        point.value = *number;
    } else if (const Object *object = json.asObj()) {
        point.label =
            firstText(*object, {u"label"_s, u"name"_s, u"title"_s, u"text"_s}).value_or(QString());
        point.value = figure(*object, u"value"_s);
        point.display = text(*object, u"display"_s);
        point.target = figure(*object, u"target"_s);
        if (const auto status = text(*object, u"status"_s))
            point.status = statusWord(*status);
        if (const auto value = text(*object, u"value"_s); value && !point.status)
            point.status = statusWord(*value);
        point.hint = firstText(*object, {u"hint"_s, u"owner"_s, u"meta"_s});
    }
    return point;
}

ViewSpec::Item CanvasEngine::item(const JVal &json) {
    ViewSpec::Item item;
    if (const QString *string = json.asStr()) {
        const LabelledText split = splitLabel(*string);
        item.label = split.label;
        item.display = split.value;
        if (split.value)
            item.value = CanvasNum::parse(*split.value);
        return item;
    }
    item.label = u"Metric"_s;
    if (const double *number = json.asNum()) {
        item.value = *number;
    } else if (const Object *object = json.asObj()) {
        item.label = firstText(*object, {u"label"_s, u"name"_s}).value_or(item.label);
        item.value = figure(*object, u"value"_s);
        item.display = text(*object, u"display"_s);
        item.delta = text(*object, u"delta"_s);
        const JVal *delta = member(*object, u"delta"_s);
        if (delta && delta->asNum())
            item.delta = CanvasNum::decimal(*delta->asNum());
    }
    return item;
}

std::optional<ViewSpec> CanvasEngine::spec(const JVal &json, const QString &key) {
    const Object *object = json.asObj();
    if (!object)
        return std::nullopt;
    ViewSpec spec;
    spec.kind = firstText(*object, {u"kind"_s, u"type"_s}).value_or(QString()).toLower();
    spec.title = text(*object, u"title"_s);
    spec.unit = text(*object, u"unit"_s);
    spec.display = text(*object, u"display"_s);
    if (const auto art = text(*object, u"art"_s))
        spec.declaredArt = art->trimmed();
    spec.points = points(*object);
    spec.series = readSeries(*object);
    for (const JVal &element : array(*object, u"items"_s))
        spec.items.append(item(element));
    readColumns(*object, spec);
    spec.rows = readRows(*object);
    for (const JVal &element : array(*object, u"options"_s)) {
        if (const QString *option = element.asStr())
            spec.options.append(*option);
    }
    spec.jsonKey = key;
    return renderable(spec) ? std::optional(spec) : std::nullopt;
}

bool CanvasEngine::renderable(const std::optional<ViewSpec> &spec) {
    if (!spec || spec->kind.isEmpty())
        return false;
    const QString &kind = spec->kind;
    if (kind == u"kpi")
        return !spec->items.isEmpty();
    if (kind == u"table")
        return !spec->columns.isEmpty() && !spec->rows.isEmpty();
    if (kind == u"compare")
        return spec->columns.size() >= 2 && !spec->rows.isEmpty();
    if (kind == u"board")
        return std::any_of(spec->boardCols.begin(), spec->boardCols.end(),
                           [](const ViewSpec::BoardCol &col) { return !col.points.isEmpty(); });
    if (kind == u"choice")
        return spec->options.size() > 1;
    if (kind == u"line" || kind == u"area" || kind == u"stacked")
        return hasPoints(spec->series);
    return !spec->points.isEmpty();
}

} // namespace kiv::canvas
