#include "support/PrivateBus.h"

#include <QStandardPaths>

#include <utility>

namespace kiv::test {

using namespace Qt::StringLiterals;

PrivateBus::PrivateBus() {
    m_daemon.start(QStandardPaths::findExecutable(u"dbus-daemon"_s),
                   {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    if (m_daemon.waitForReadyRead())
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection(const QString &name) {
    if (!m_names.contains(name))
        m_names.append(name);
    return QDBusConnection::connectToBus(m_address, name);
}

void PrivateBus::disconnectAll() {
    for (const QString &name : std::exchange(m_names, {}))
        QDBusConnection::disconnectFromBus(name);
}

QDBusConnection PrivateBus::noConnection() {
    return QDBusConnection::connectToBus(u"unix:path=/nowhere"_s, u"nobody"_s);
}

} // namespace kiv::test
