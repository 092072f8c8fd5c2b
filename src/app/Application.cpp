#include "app/Application.h"

#include "base/BaseUrl.h"
#include "ui/Modules.h"
#include "voice/FileDevices.h"
#include "voice/MicrophoneHost.h"

#include <QFile>
#include <QQuickWindow>

namespace kiv::app {

using namespace Qt::StringLiterals;

namespace {

/// Pages have a way of their own to a microphone; it leads to the same file.
void letPagesHear(const QString &file) {
    const char *variable = "QTWEBENGINE_CHROMIUM_FLAGS";
    qputenv(variable, (qgetenv(variable) +
                       " --use-fake-device-for-media-stream "
                       "--use-file-for-fake-audio-capture=\"" +
                       QFile::encodeName(file) + '"')
                          .trimmed());
}

} // namespace

void Application::prepareProcess() {
    // A web engine that is loaded later draws with what the window draws with.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
}

Application::Application(const Options &options)
    : m_options(options),
      m_settings(options.places.settingsFile, QSettings::IniFormat),
      m_frame(m_settings, m_clock),
      m_net(std::make_unique<net::APIClient>(m_clock, m_connectivity, options.places.cookieFile)),
      m_webHost(options.places.webPlugin) {
    m_store = std::make_unique<store::AppStore>(
        m_clock, *m_net, m_settings, options.places.draftsFile,
        options.snapshot ? store::AppStore::Mode::Snapshot : store::AppStore::Mode::Normal);
    m_store->attachments()->setChooser(&m_chooser);
    m_store->account()->setChooser(&m_chooser);
    m_delegate = std::make_unique<AppDelegate>(*m_store);
    m_store->setWebHost(&m_webHost);
    if (options.audioFile.isEmpty()) {
        m_microphones = std::make_unique<voice::MicrophoneHost>(options.places.micPlugin);
    } else {
        m_microphones = std::make_unique<voice::FileDevices>(m_clock, options.audioFile);
        letPagesHear(options.audioFile);
    }
    m_store->microphone()->setSource(m_microphones.get());
    m_store->dictation()->setService(&m_speech);
    if (options.theme)
        m_store->appearance()->presetTheme(*options.theme);
    QObject::connect(&m_systemLook, &SystemLook::darkChanged, m_store->appearance(),
                     &store::AppearanceRoom::setSystemDark);
    m_systemLook.watch();
}

Application::~Application() {
    m_start.cancel();
    if (!m_options.snapshot)
        m_frame.save();
    m_settings.sync();
}

void Application::start() {
    // The server comes up while the window is being made.
    m_start.start([this](Cancel cancel) { return connectToBackend(std::move(cancel)); });
    ui::WindowLook look;
    if (!m_options.snapshot) {
        look.frame = m_frame.restored();
        look.maximized = m_frame.wasMaximized();
    }
    ui::showMainWindow(m_engine, *m_store, *m_delegate, look);
    m_delegate->setWindow(window());
    m_chooser.setWindow(window());
    if (window() && !m_options.snapshot)
        m_frame.follow(window(), look.frame.value_or(window()->geometry()));
}

QCoro::Task<void> Application::connectToBackend(Cancel cancel) {
    try {
        if (m_options.baseUrl) {
            m_net->setBaseUrl(*m_options.baseUrl);
        } else {
            const QStringList arguments =
                QStringList{u"--data-dir"_s, m_options.places.workspaceDir} +
                m_options.sandboxArguments;
            m_server = std::make_unique<EmbeddedServer>(m_clock, m_options.places.sandboxProgram,
                                                        arguments);
            const EmbeddedServer::Greeting greeting = co_await m_server->start(cancel);
            m_net->setBaseUrl(greeting.url);
            m_store->session()->offerSample(greeting.sample);
        }
        m_store->boot();
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        qCritical("%s", error.what());
        m_store->session()->reportUnavailable(QString::fromUtf8(error.what()));
    }
}

QQuickWindow *Application::window() const {
    const QList<QObject *> roots = m_engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}

} // namespace kiv::app
