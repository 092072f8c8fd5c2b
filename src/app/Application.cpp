#include "app/Application.h"

#include "base/AppVersion.h"
#include "base/BaseUrl.h"
#include "base/PrivateFile.h"
#include "desktop/Diagnostics.h"
#include "desktop/Instance.h"
#include "voice/FileDevices.h"
#include "voice/MicrophoneHost.h"

#include <QFile>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>

namespace kiv::app {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

constexpr qsizetype reportedLines = 40;
/// How soon an embedded server that has ended is started again, and how seldom at last.
constexpr Clock::Milliseconds firstPause = 250ms;
constexpr Clock::Milliseconds longestPause = 30s;
/// One that has run that long is not ended by how it is started.
constexpr Clock::Milliseconds lasting = 60s;
const QString askAction = u"ask-kiv"_s;

QString drawnBy(const QQuickWindow *window) {
    switch (window->rendererInterface()->graphicsApi()) {
    case QSGRendererInterface::OpenGL:
        return u"OpenGL"_s;
    case QSGRendererInterface::Software:
        return u"software"_s;
    default:
        return u"other"_s;
    }
}

} // namespace

Application::Ground::Ground(const Options &options) : log(options.places.logFile) {
    log.capture();
    log.write(QtInfoMsg, u"KIV %1 starts"_s.arg(AppVersion::running().display()));
    const Places &places = options.places;
    for (const QString &file : {places.settingsFile, places.cookieFile, places.stateFile})
        PrivateFile::makeFolderOf(file);
}

void Application::prepareProcess() {
    Graphics::choose();
    // Icons share one texture. By itself that is as large as the window: 8 MiB, a tenth of it used.
    qputenv("QSG_ATLAS_WIDTH", "1024");
    qputenv("QSG_ATLAS_HEIGHT", "512");
}

Application::Application(const Options &options)
    : m_options(options),
      m_ground(options),
      m_window(std::make_unique<ui::MainWindow>()),
      m_settings(options.places.settingsFile),
      m_state(options.places.stateFile),
      m_frame(m_state, m_clock),
      // A profile of its own is whole in its folder.
      m_net(std::make_unique<net::APIClient>(m_clock, m_connectivity, options.places.cookieFile,
                                             options.places.profile.isEmpty() ? &m_keyChain
                                                                              : nullptr)),
      m_webHost(options.places.webPlugin) {
    m_store = std::make_unique<store::AppStore>(
        m_clock, *m_net, m_settings, options.places.draftsFile,
        options.snapshot ? store::AppStore::Mode::Snapshot : store::AppStore::Mode::Normal);
    watchStorage();
    m_store->attachments()->setChooser(&m_chooser);
    m_store->account()->setChooser(&m_chooser);
    m_delegate = std::make_unique<AppDelegate>(*m_store);
    m_delegate->setDiagnostics([this] { return diagnostics(); });
    m_notes = std::make_unique<AnswerNotes>(*m_store, m_notifier);
    QObject::connect(&m_notifier, &desktop::Notifier::clicked, m_store.get(),
                     [this](const QString &topic, const QString &token) {
                         raise(token);
                         openLink(topic);
                     });
    QObject::connect(&m_net->cookies(), &net::PersistentCookieJar::joined, m_store.get(),
                     [this] { bootAgain(); });
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
    if (options.language)
        m_store->appearance()->presetLanguage(*options.language);
    m_systemLook.tell(*m_store->appearance());
    m_systemLook.watch();
}

Application::~Application() {
    m_start.cancel();
    if (!m_options.snapshot)
        m_frame.save();
    m_window.reset(); // it shows what goes now
}

/// What the disk gives and takes is told in one place.
void Application::watchStorage() {
    using Kept = store::StorageRoom::Kept;
    store::StorageRoom *storage = m_store->storage();
    storage->reportDamage(Kept::Settings, m_settings.setAside());
    storage->reportDamage(Kept::Session, m_net->cookies().setAside());
    QObject::connect(&m_settings, &SettingsFile::failureChanged, storage, [this, storage] {
        storage->reportTrouble(Kept::Settings, m_settings.failure());
    });
    QObject::connect(&m_net->cookies(), &net::PersistentCookieJar::written, storage,
                     [storage](const QString &why) { storage->reportTrouble(Kept::Session, why); });
    QObject::connect(storage, &store::StorageRoom::retryRequested, &m_settings, [this] {
        m_settings.save();
        m_net->cookies().save();
    });
    QObject::connect(m_store->connection(), &store::ConnectionRoom::startRequested, m_store.get(),
                     [this] { connectAgain(); });
}

void Application::connectAgain() {
    m_start.restart([this](Cancel cancel) { return connectToBackend(std::move(cancel)); });
}

void Application::start() {
    // The server comes up while the window is being made.
    connectAgain();
    ui::WindowLook look{.size = WindowFrame::firstSize(), .least = WindowFrame::leastSize()};
    if (!m_options.snapshot) {
        look.frame = m_frame.restored();
        look.maximized = m_frame.wasMaximized();
    }
    m_window->open(*m_store, *m_delegate, look);
    m_delegate->setWindow(window());
    m_notes->setWindow(window());
    m_chooser.setWindow(window());
    if (window() && !m_options.snapshot)
        m_frame.follow(window(), look.frame.value_or(window()->geometry()));
}

QCoro::Task<void> Application::connectToBackend(Cancel cancel) {
    if (m_options.baseUrl) {
        m_net->setBaseUrl(*m_options.baseUrl);
        boot();
        co_return;
    }
    const QStringList arguments =
        QStringList{u"--data-dir"_s, m_options.places.workspaceDir} + m_options.sandboxArguments;
    m_server =
        std::make_unique<EmbeddedServer>(m_clock, m_options.places.sandboxProgram, arguments);
    QString failure;
    try {
        co_await startServer(cancel);
    } catch (const std::exception &error) {
        cancel.throwIfRequested();
        failure = QString::fromUtf8(error.what());
    }
    if (!failure.isEmpty()) {
        qCritical("%s", qPrintable(failure));
        m_store->session()->reportUnavailable(failure);
        co_return;
    }
    boot();
    co_await keepServer(cancel);
}

QCoro::Task<void> Application::startServer(Cancel cancel) {
    const EmbeddedServer::Greeting greeting = co_await m_server->start(std::move(cancel));
    m_net->setBaseUrl(greeting.url);
    m_store->session()->offerSample(greeting.sample);
    m_store->storage()->reportDamage(store::StorageRoom::Kept::Workspace, greeting.setAside);
}

/// A server that ends is started again, more and more seldom while it does not last. Meanwhile what
/// is sent waits, as without a network.
QCoro::Task<void> Application::keepServer(Cancel cancel) {
    for (auto pause = firstPause;;) {
        const auto since = m_clock.elapsed();
        co_await m_server->ended(cancel);
        qWarning("The embedded workspace has ended and is started again");
        m_connectivity.setServerDown(true);
        if (m_clock.elapsed() - since > lasting)
            pause = firstPause;
        for (bool isUp = false; !isUp; pause = std::min(2 * pause, longestPause)) {
            co_await m_clock.sleep(pause, cancel);
            try {
                co_await startServer(cancel);
                isUp = true;
            } catch (const std::exception &error) {
                cancel.throwIfRequested();
                qWarning("%s", error.what());
            }
        }
        m_connectivity.setServerDown(false);
        bootAgain();
    }
}

/// Who is signed in is asked when the session is there, or known to be nowhere.
void Application::boot() {
    net::PersistentCookieJar &cookies = m_net->cookies();
    if (cookies.isWaiting())
        QObject::connect(&cookies, &net::PersistentCookieJar::settled, m_store.get(),
                         &store::AppStore::boot, Qt::SingleShotConnection);
    else
        m_store->boot();
}

/// The session has come late from the key chain, or the server is back: nobody has to sign in who
/// was signed in.
void Application::bootAgain() {
    if (m_store->scope()->auth() == store::AuthPhase::Anon && !m_store->session()->busy())
        m_store->boot();
}

void Application::serve(desktop::Instance &instance) {
    QObject::connect(&instance, &desktop::Instance::activated, m_store.get(),
                     [this](const QString &token) { raise(token); });
    QObject::connect(&instance, &desktop::Instance::linkOpened, m_store.get(),
                     [this](const QString &link) { openLink(link); });
    QObject::connect(&instance, &desktop::Instance::actionChosen, m_store.get(),
                     [this](const QString &action) {
                         if (action == askAction)
                             m_store->door()->open({});
                     });
}

void Application::openLink(const QString &link) {
    if (const auto chat = store::ChatLink::parse(link))
        m_store->door()->open(*chat);
    else
        qWarning("A link that is no link to a chat was not followed");
}

void Application::raise(const QString &token) {
    QQuickWindow *shown = window();
    if (!shown)
        return;
    // The platform's plugin takes the desktop's leave from there, once.
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    shown->setWindowStates(shown->windowStates() & ~Qt::WindowMinimized);
    shown->show();
    shown->raise();
    shown->requestActivate();
}

QString Application::diagnostics() const {
    QList<std::pair<QString, QString>> facts{
        {u"Workspace"_s, m_options.baseUrl ? u"hosted"_s : u"embedded"_s},
        {u"Look"_s, m_store->appearance()->dark() ? u"dark"_s : u"light"_s},
        {u"Profile"_s, m_options.places.profile.isEmpty() ? u"the user's"_s : u"its own"_s}};
    if (const QQuickWindow *shown = window()) {
        facts.append({u"Drawn by"_s, drawnBy(shown)});
        facts.append({u"Window"_s, u"%1 x %2"_s.arg(shown->width()).arg(shown->height())});
    }
    return desktop::diagnostics(facts, m_ground.log.lastLines(reportedLines));
}

} // namespace kiv::app
