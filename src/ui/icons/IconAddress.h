#pragma once

#include <QColor>
#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Where the picture of an icon is asked for. It is put together here because the engine may free a
/// colour that a view turns into text before it has done so.
class IconAddress : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// `size` in device-independent pixels. Nothing for no name.
    Q_INVOKABLE QUrl of(const QString &name, int size, const QColor &color) const;
};

} // namespace kiv::ui
