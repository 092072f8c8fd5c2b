#include "app/Application.h"
#include "base/BaseUrl.h"
#include "base/QuitSignals.h"
#include "base/Version.h"
#include "desktop/DesktopId.h"
#include "desktop/Instance.h"
#include "desktop/LogText.h"

#include <QGuiApplication>

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <thread>

using namespace std::chrono_literals;

namespace {

/// How long a start waits for the program that is already running. One that is ending takes up to
/// six seconds: a call is ended, and the workspace given time.
constexpr auto handOverPatience = 8s;

/// The desktop's leave to raise a window, given to this start. Read before the platform's plugin
/// takes it away.
QString startToken() {
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

/// Whether only words on the terminal are wanted, for which no display is needed.
bool wantsWords(int argc, char **argv) {
    const std::string_view words[] = {"--help", "-h", "--help-all", "--version", "-v"};
    return std::find_first_of(argv + 1, argv + argc, std::begin(words), std::end(words),
                              [](const char *argument, std::string_view word) {
                                  return argument == word;
                              }) != argv + argc;
}

/// Runs the program, or leaves what it was asked to the one that runs.
int run(const kiv::app::Options &options, const QString &token) {
    using kiv::desktop::Instance;
    Instance instance(QDBusConnection::sessionBus(), options.places.profile,
                      options.places.lockFile);
    switch (instance.claim(options.links, token, handOverPatience)) {
    case Instance::Place::HandedOver:
        return 0;
    case Instance::Place::NoAnswer:
        std::fputs("KIV is already running but does not answer. End it and start KIV again.\n",
                   stderr);
        return 3;
    case Instance::Place::First:
        break;
    }
    kiv::app::Application program(options);
    kiv::quitOnSignals(*qApp);
    program.serve(instance);
    program.start();
    for (const QString &link : options.links)
        program.openLink(link);
    return program.window() ? QGuiApplication::exec() : 1;
}

int refuse(const std::exception &error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication::setApplicationName(QStringLiteral("kiv"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));
    if (wantsWords(argc, argv)) {
        const QCoreApplication application(argc, argv);
        kiv::app::readOptions(QCoreApplication::arguments());
    }
    kiv::app::Application::prepareProcess();
    const QString token = startToken();
    // What the first text and the first line of the log need, while the platform's plugin is
    // loaded. It reads the environment, out of which the plugin only takes what is not looked for.
    const std::jthread ahead([] {
        FcInit();
        kiv::desktop::LogText::prepare();
    });
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("KIV"));
    QGuiApplication::setDesktopFileName(kiv::desktop::desktopId);
    try {
        return run(kiv::app::readOptions(application.arguments()), token);
    } catch (const kiv::BaseUrlError &error) {
        return refuse(error);
    } catch (const kiv::app::OptionError &error) {
        return refuse(error);
    }
}
