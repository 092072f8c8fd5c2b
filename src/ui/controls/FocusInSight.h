#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Scrolls a Flickable to what takes the keyboard's focus in it.
class FocusInSight : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The Flickable.
    Q_PROPERTY(QQuickItem *area MEMBER m_area WRITE setArea REQUIRED)
public:
    using QObject::QObject;

    void setArea(QQuickItem *area);

private:
    void follow(QQuickWindow *window);
    void look();

    QPointer<QQuickItem> m_area;
    QPointer<QQuickWindow> m_window;
};

} // namespace kiv::ui
