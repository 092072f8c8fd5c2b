#pragma once

#include "base/SettingsFile.h"
#include "net/APIClient.h"
#include "store/AppStore.h"

#include <QTemporaryDir>

#include <memory>

namespace kiv::soak {

class ShownWindow;

/// The client as it runs, on a profile that outlives it: settings, session, store, and the window
/// where there are views.
class Program {
public:
    /// `profile` is a folder. Clock and connectivity outlive the program.
    Program(Clock &clock, net::Connectivity &connectivity, const QString &profile,
            const QUrl &server);
    ~Program();

    store::AppStore &store() { return m_store; }

private:
    SettingsFile m_settings;
    net::APIClient m_net;
    store::AppStore m_store;
    std::unique_ptr<ShownWindow> m_window;
};

} // namespace kiv::soak
