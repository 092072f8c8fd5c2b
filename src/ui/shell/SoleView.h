#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace kiv::ui {

/// Lets one area have its window for itself: the area takes the keyboard's focus before what stood
/// beside it goes, and the focus goes back to where it was once that shows again.
class SoleView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *area MEMBER m_area REQUIRED)
    Q_PROPERTY(bool wanted READ wanted WRITE setWanted REQUIRED)
    /// What stands beside the area follows this.
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)
public:
    using QObject::QObject;

    bool wanted() const { return m_active; }
    void setWanted(bool wanted);
    bool isActive() const { return m_active; }

Q_SIGNALS:
    void activeChanged();

private:
    void enter();
    void leave();

    QQuickItem *m_area = nullptr;
    bool m_active = false;
    QPointer<QQuickItem> m_before; ///< what had the focus
};

} // namespace kiv::ui
