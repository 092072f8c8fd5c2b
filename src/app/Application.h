#pragma once

#include "app/AnswerNotes.h"
#include "app/AppDelegate.h"
#include "app/EmbeddedServer.h"
#include "app/Graphics.h"
#include "app/Options.h"
#include "app/SystemLook.h"
#include "app/WindowFrame.h"
#include "base/SettingsFile.h"
#include "base/SystemClock.h"
#include "base/Work.h"
#include "desktop/KeychainStore.h"
#include "desktop/LogFile.h"
#include "desktop/Notifier.h"
#include "net/APIClient.h"
#include "net/Connectivity.h"
#include "net/PersistentCookieJar.h"
#include "store/AppStore.h"
#include "ui/MainWindow.h"
#include "ui/chat/DialogChooser.h"
#include "voice/AudioDevices.h"
#include "voice/LocalSpeech.h"
#include "web/WebHost.h"

#include <memory>

namespace kiv::desktop {
class Instance;
}

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

    /// Does what other starts of the program and the desktop ask of this one.
    void serve(desktop::Instance &instance);
    /// Opens the chat that a link names; one that is no such link is not followed.
    void openLink(const QString &link);

    QQuickWindow *window() const { return m_window->window(); }
    store::AppStore &store() { return *m_store; }

private:
    /// Keeps files that must be where they belong before anything reads them.
    struct Ground {
        explicit Ground(const Options &options);
        desktop::LogFile log;
    };

    void watchStorage();
    void connectAgain();
    QCoro::Task<void> connectToBackend(Cancel cancel);
    QCoro::Task<void> startServer(Cancel cancel);
    QCoro::Task<void> keepServer(Cancel cancel);
    void boot();
    void bootAgain();
    void raise(const QString &token);
    QString diagnostics() const;

    Options m_options;
    Ground m_ground;
    std::unique_ptr<ui::MainWindow> m_window; ///< its views are read while the rest is made
    Graphics m_graphics;
    SystemClock m_clock;
    SettingsFile m_settings;
    SettingsFile m_state;
    WindowFrame m_frame;
    SystemLook m_systemLook{QDBusConnection::sessionBus()};
    net::SystemConnectivity m_connectivity;
    desktop::KeychainStore m_keyChain{QStringLiteral("session")};
    std::unique_ptr<net::APIClient> m_net;
    std::unique_ptr<EmbeddedServer> m_server;
    ui::DialogChooser m_chooser;
    web::WebHost m_webHost;
    std::unique_ptr<voice::AudioDevices> m_microphones;
    voice::LocalSpeech m_speech{m_clock};
    std::unique_ptr<store::AppStore> m_store;
    std::unique_ptr<AppDelegate> m_delegate;
    desktop::Notifier m_notifier{QDBusConnection::sessionBus()};
    std::unique_ptr<AnswerNotes> m_notes;
    Work m_start;
};

} // namespace kiv::app
