#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace kiv::app {

/// Whether the desktop prefers dark windows, as its settings portal tells. Without a portal nothing
/// is ever said.
class SystemLook : public QObject {
    Q_OBJECT
public:
    /// The bus that the portal is on.
    explicit SystemLook(const QDBusConnection &bus) : m_bus(bus) {}

    /// Asks once, and says every change from now on.
    void watch();

Q_SIGNALS:
    void darkChanged(bool dark);

private Q_SLOTS:
    void take(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
};

} // namespace kiv::app
