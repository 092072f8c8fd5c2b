#include "SpecJson.h"

#include <QJsonArray>

namespace kiv::tools {

using namespace Qt::StringLiterals;
using canvas::ViewSpec;

namespace {

template <typename T>
QJsonValue orNull(const std::optional<T> &value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

template <typename T>
QJsonArray listJson(const QList<T> &records, QJsonObject (*json)(const T &)) {
    QJsonArray list;
    for (const T &record : records)
        list.append(json(record));
    return list;
}

QJsonObject pointJson(const ViewSpec::Point &point) {
    return {{u"label"_s, point.label},
            {u"value"_s, orNull(point.value)},
            {u"display"_s, orNull(point.display)},
            {u"target"_s, orNull(point.target)},
            {u"status"_s, orNull(point.status)},
            {u"hint"_s, orNull(point.hint)}};
}

QJsonObject seriesJson(const ViewSpec::Series &series) {
    return {{u"name"_s, series.name}, {u"points"_s, listJson(series.points, &pointJson)}};
}

QJsonObject itemJson(const ViewSpec::Item &item) {
    return {{u"label"_s, item.label},
            {u"value"_s, orNull(item.value)},
            {u"display"_s, orNull(item.display)},
            {u"delta"_s, orNull(item.delta)}};
}

QJsonObject boardColJson(const ViewSpec::BoardCol &column) {
    return {{u"name"_s, column.name}, {u"points"_s, listJson(column.points, &pointJson)}};
}

} // namespace

QJsonObject specJson(const ViewSpec &spec) {
    QJsonArray rows;
    for (const QStringList &row : spec.rows)
        rows.append(QJsonArray::fromStringList(row));
    return {{u"kind"_s, spec.kind},
            {u"title"_s, orNull(spec.title)},
            {u"unit"_s, orNull(spec.unit)},
            {u"display"_s, orNull(spec.display)},
            {u"declaredArt"_s, orNull(spec.declaredArt)},
            {u"points"_s, listJson(spec.points, &pointJson)},
            {u"series"_s, listJson(spec.series, &seriesJson)},
            {u"items"_s, listJson(spec.items, &itemJson)},
            {u"columns"_s, QJsonArray::fromStringList(spec.columns)},
            {u"rows"_s, rows},
            {u"boardCols"_s, listJson(spec.boardCols, &boardColJson)},
            {u"options"_s, QJsonArray::fromStringList(spec.options)},
            {u"jsonKey"_s, spec.jsonKey}};
}

} // namespace kiv::tools
