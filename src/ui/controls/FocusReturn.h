#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Gives the keyboard's focus back to what had it before a popup came.
class FocusReturn : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    using QObject::QObject;

    Q_INVOKABLE void remember();
    /// Nothing when something else has taken the focus meanwhile.
    Q_INVOKABLE void giveBack();

private:
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_item;
};

} // namespace kiv::ui
