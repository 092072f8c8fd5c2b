#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>

namespace kiv::test {

/// A session bus that only this test is on.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    /// False where there is no program for buses.
    bool isThere() const { return !m_address.isEmpty(); }
    const QString &address() const { return m_address; }
    /// The connection of the participant `name`, made when it is first asked for.
    QDBusConnection connection(const QString &name);
    /// Every participant leaves.
    void disconnectAll();
    /// One that was never made.
    static QDBusConnection noConnection();

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names; ///< of the participants
};

} // namespace kiv::test
