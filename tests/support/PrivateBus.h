#pragma once

#include <QDBusConnection>
#include <QProcess>

namespace kiv::test {

/// A session bus that only this test is on.
class PrivateBus {
public:
    PrivateBus() {
#ifdef KIV_DBUS_DAEMON
        m_daemon.start(QStringLiteral(KIV_DBUS_DAEMON),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address")});
        if (m_daemon.waitForReadyRead())
            m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
#endif
    }
    ~PrivateBus() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    bool isThere() const {
        return !m_address.isEmpty();
    }
    const QString &address() const {
        return m_address;
    }
    /// The connection of the participant `name`, made when it is first asked for.
    QDBusConnection connection(const QString &name) const {
        return QDBusConnection::connectToBus(m_address, name);
    }
    static QDBusConnection noConnection() {
        return QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere"),
                                             QStringLiteral("nobody"));
    }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace kiv::test
