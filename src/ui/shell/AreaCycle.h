#pragma once

#include <QQuickItem>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Moves the keyboard's focus from one area of the window to the next one that shows.
class AreaCycle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// In the order in which they are visited.
    Q_PROPERTY(QQmlListProperty<QQuickItem> areas READ areas CONSTANT REQUIRED)
public:
    using QObject::QObject;

    QQmlListProperty<QQuickItem> areas() { return {this, &m_areas}; }
    Q_INVOKABLE void next();

private:
    QList<QQuickItem *> m_areas;
};

} // namespace kiv::ui
