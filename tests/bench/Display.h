#pragma once

#include "support/PrivateBus.h"

#include <QProcess>

namespace kiv::bench {

/// Where a program that is measured shows its window: an X display and a session bus that nobody
/// else is on, without a graphics card. Where there is no Xvfb the window is off screen.
class Display {
public:
    Display();
    ~Display();

    /// What a program is started with to show its window there.
    QProcessEnvironment environment() const;

private:
    test::PrivateBus m_bus;
    QProcess m_server;
    QString m_name; ///< empty when there is none
};

} // namespace kiv::bench
