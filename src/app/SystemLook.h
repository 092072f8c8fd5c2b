#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace kiv::store {
class AppearanceRoom;
}

namespace kiv::app {

/// How the desktop wants windows to look, as its settings portal tells. Without a portal nothing is
/// ever said.
class SystemLook : public QObject {
    Q_OBJECT
public:
    /// The bus that the portal is on.
    explicit SystemLook(const QDBusConnection &bus) : m_bus(bus) {}

    /// Says everything to a room too; it outlives this or goes quietly.
    void tell(store::AppearanceRoom &room);
    /// Asks for each setting once, and says every change from now on.
    void watch();

Q_SIGNALS:
    void darkChanged(bool dark);
    void contrastChanged(bool high);
    /// Whether what moves shall keep still.
    void motionChanged(bool still);
    /// What text is multiplied by.
    void textScaleChanged(double scale);

private Q_SLOTS:
    void take(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask(const QString &group, const QString &key);

    QDBusConnection m_bus;
    bool m_prefersStill = false;
    bool m_hasNoAnimations = false;
};

} // namespace kiv::app
