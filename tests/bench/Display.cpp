#include "Display.h"

#include <QStandardPaths>

namespace kiv::bench {

using namespace Qt::StringLiterals;

Display::Display() {
    const QString program = QStandardPaths::findExecutable(u"Xvfb"_s);
    if (program.isEmpty())
        return;
    // It says the number of a display that was free.
    m_server.start(program, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1600x1000x24"_s,
                             u"-nolisten"_s, u"tcp"_s});
    if (m_server.waitForReadyRead())
        m_name = u':' + QString::fromLatin1(m_server.readLine()).trimmed();
}

Display::~Display() {
    m_server.terminate();
    m_server.waitForFinished();
}

QProcessEnvironment Display::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (m_bus.isThere())
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
    if (!m_name.isEmpty()) {
        environment.insert(u"DISPLAY"_s, m_name);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment.insert(u"LIBGL_ALWAYS_SOFTWARE"_s, u"1"_s);
        environment.remove(u"QT_QUICK_BACKEND"_s);
    }
    return environment;
}

} // namespace kiv::bench
