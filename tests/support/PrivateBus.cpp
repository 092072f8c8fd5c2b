#include "support/PrivateBus.h"

#include <QStandardPaths>

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

QDBusConnection PrivateBus::noConnection() {
    return QDBusConnection::connectToBus(u"unix:path=/nowhere"_s, u"nobody"_s);
}

} // namespace kiv::test
