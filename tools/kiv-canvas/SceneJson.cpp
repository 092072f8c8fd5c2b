#include "SceneJson.h"

#include <QMetaEnum>
#include <QMetaProperty>
#include <QSequentialIterable>

namespace kiv::tools {

namespace {

void writeValue(JsonText &json, const QVariant &value);

/// A record by its properties, so that a new field of a scene is explained without a word here.
void writeRecord(JsonText &json, const QMetaObject &type, const void *record) {
    json.beginObject();
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        if (!property.isStored())
            continue;
        const QVariant value = property.readOnGadget(record);
        json.key(QString::fromLatin1(property.name()));
        if (property.isEnumType())
            json.value(
                QString::fromLatin1(property.enumerator().valueToKey(value.toInt())).toLower());
        else
            writeValue(json, value);
    }
    json.endObject();
}

template <typename T>
const T *held(const QVariant &value) {
    return value.metaType() == QMetaType::fromType<T>() ? static_cast<const T *>(value.constData())
                                                        : nullptr;
}

void writeValue(JsonText &json, const QVariant &value) {
    if (const auto *text = held<QString>(value)) {
        json.value(*text);
    } else if (const auto *number = held<double>(value)) {
        json.value(*number);
    } else if (const auto *whole = held<int>(value)) {
        json.value(*whole);
    } else if (const auto *flag = held<bool>(value)) {
        json.value(*flag);
    } else if (const auto *texts = held<QStringList>(value)) {
        json.value(*texts);
    } else if (const auto *flags = held<QList<bool>>(value)) {
        json.value(*flags);
    } else if (const auto *point = held<QPointF>(value)) {
        json.beginObject();
        json.member(u"x", point->x());
        json.member(u"y", point->y());
        json.endObject();
    } else if (value.metaType().flags().testFlag(QMetaType::IsGadget)) {
        writeRecord(json, *value.metaType().metaObject(), value.constData());
    } else if (value.canConvert<QVariantList>()) {
        json.beginArray();
        for (const QVariant &element : value.value<QSequentialIterable>())
            writeValue(json, element);
        json.endArray();
    } else {
        json.null();
    }
}

} // namespace

void writeScene(JsonText &json, const canvas::SceneOut &scene) {
    writeRecord(json, canvas::SceneOut::staticMetaObject, &scene);
}

} // namespace kiv::tools
