#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace kiv::ui {

/// The system's clipboard.
class Clipboard : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    Q_INVOKABLE static void setText(const QString &text);
};

} // namespace kiv::ui
