#include "SceneJson.h"

#include <QJsonArray>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSequentialIterable>

namespace kiv::tools {

using namespace Qt::StringLiterals;

namespace {

QJsonValue valueJson(const QVariant &value);

/// A record by its properties, so that a new field of a scene is explained without a word here.
QJsonObject recordJson(const QMetaObject &type, const void *record) {
    QJsonObject object;
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        if (!property.isStored())
            continue;
        const QVariant value = property.readOnGadget(record);
        const QString name = QString::fromLatin1(property.name());
        if (property.isEnumType())
            object.insert(
                name,
                QString::fromLatin1(property.enumerator().valueToKey(value.toInt())).toLower());
        else
            object.insert(name, valueJson(value));
    }
    return object;
}

QJsonValue valueJson(const QVariant &value) {
    const QMetaType type = value.metaType();
    // The cells of a long table are most of a scene: they go the short way.
    if (type == QMetaType::fromType<QString>())
        return *static_cast<const QString *>(value.constData());
    if (type == QMetaType::fromType<QStringList>())
        return QJsonArray::fromStringList(*static_cast<const QStringList *>(value.constData()));
    if (type == QMetaType::fromType<QList<bool>>()) {
        QJsonArray flags;
        for (const bool flag : *static_cast<const QList<bool> *>(value.constData()))
            flags.append(flag);
        return flags;
    }
    if (type == QMetaType::fromType<QPointF>()) {
        const QPointF point = value.toPointF();
        return QJsonObject{{u"x"_s, point.x()}, {u"y"_s, point.y()}};
    }
    if (type.flags().testFlag(QMetaType::IsGadget))
        return recordJson(*type.metaObject(), value.constData());
    if (value.canConvert<QVariantList>()) {
        QJsonArray elements;
        for (const QVariant &element : value.value<QSequentialIterable>())
            elements.append(valueJson(element));
        return elements;
    }
    return QJsonValue::fromVariant(value);
}

} // namespace

QJsonObject sceneJson(const canvas::SceneOut &scene) {
    return recordJson(canvas::SceneOut::staticMetaObject, &scene);
}

} // namespace kiv::tools
