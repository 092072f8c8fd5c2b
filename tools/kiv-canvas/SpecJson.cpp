#include "SpecJson.h"

namespace kiv::tools {

using canvas::ViewSpec;

namespace {

void write(JsonText &json, const ViewSpec::Point &point) {
    json.member(u"label", point.label);
    json.member(u"value", point.value);
    json.member(u"display", point.display);
    json.member(u"target", point.target);
    json.member(u"status", point.status);
    json.member(u"hint", point.hint);
}

void write(JsonText &json, const ViewSpec::Item &item) {
    json.member(u"label", item.label);
    json.member(u"value", item.value);
    json.member(u"display", item.display);
    json.member(u"delta", item.delta);
}

void write(JsonText &json, const ViewSpec::Series &series);
void write(JsonText &json, const ViewSpec::BoardCol &column);

template <typename T>
void writeList(JsonText &json, QStringView name, const QList<T> &records) {
    json.member(name, records, [&](const T &record) { write(json, record); });
}

void write(JsonText &json, const ViewSpec::Series &series) {
    json.member(u"name", series.name);
    writeList(json, u"points", series.points);
}

void write(JsonText &json, const ViewSpec::BoardCol &column) {
    json.member(u"name", column.name);
    writeList(json, u"points", column.points);
}

} // namespace

void writeSpec(JsonText &json, const ViewSpec &spec) {
    json.beginObject();
    json.member(u"kind", spec.kind);
    json.member(u"title", spec.title);
    json.member(u"unit", spec.unit);
    json.member(u"display", spec.display);
    json.member(u"declaredArt", spec.declaredArt);
    writeList(json, u"points", spec.points);
    writeList(json, u"series", spec.series);
    writeList(json, u"items", spec.items);
    json.member(u"columns", spec.columns);
    json.member(u"rows", spec.rows);
    writeList(json, u"boardCols", spec.boardCols);
    json.member(u"options", spec.options);
    json.member(u"jsonKey", spec.jsonKey);
    json.endObject();
}

} // namespace kiv::tools
