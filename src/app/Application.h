#pragma once

#include "app/AppDelegate.h"
#include "app/EmbeddedServer.h"
#include "app/Options.h"
#include "app/SystemLook.h"
#include "app/WindowFrame.h"
#include "base/SystemClock.h"
#include "base/Work.h"
#include "net/APIClient.h"
#include "net/Connectivity.h"
#include "net/PersistentCookieJar.h"
#include "store/AppStore.h"
#include "ui/chat/DialogChooser.h"
#include "voice/AudioDevices.h"
#include "voice/LocalSpeech.h"
#include "web/WebHost.h"

#include <QQmlApplicationEngine>
#include <QSettings>

#include <memory>

class QQuickWindow;

namespace kiv::app {

/// The whole program: clock, client, store, window and, unless a hosted backend is named, the
/// embedded workspace. Needs a QGuiApplication.
class Application {
public:
    /// To be called before the application object is made.
    static void prepareProcess();

    explicit Application(const Options &options);
    ~Application();

    /// Shows the window and begins to talk to the backend.
    void start();

    QQuickWindow *window() const;
    store::AppStore &store() { return *m_store; }

private:
    QCoro::Task<void> connectToBackend(Cancel cancel);

    Options m_options;
    SystemClock m_clock;
    QSettings m_settings;
    WindowFrame m_frame;
    SystemLook m_systemLook{QDBusConnection::sessionBus()};
    net::SystemConnectivity m_connectivity;
    std::unique_ptr<net::APIClient> m_net;
    std::unique_ptr<EmbeddedServer> m_server;
    ui::DialogChooser m_chooser;
    web::WebHost m_webHost;
    std::unique_ptr<voice::AudioDevices> m_microphones;
    voice::LocalSpeech m_speech{m_clock};
    std::unique_ptr<store::AppStore> m_store;
    std::unique_ptr<AppDelegate> m_delegate;
    QQmlApplicationEngine m_engine;
    Work m_start;
};

} // namespace kiv::app
