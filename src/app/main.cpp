#include "app/Application.h"
#include "base/BaseUrl.h"
#include "base/Version.h"
#include "desktop/DesktopId.h"
#include "desktop/Instance.h"
#include "desktop/LogText.h"

#include <QGuiApplication>

#include <fontconfig/fontconfig.h>

#include <cstdio>
#include <thread>

using namespace std::chrono_literals;

namespace {

/// How long a start waits for the program that is already running.
constexpr auto handOverPatience = 5s;

/// The desktop's leave to raise a window, given to this start. Read before the platform's plugin
/// takes it away.
QString startToken() {
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

/// Runs the program, or leaves what it was asked to the one that runs.
int run(const kiv::app::Options &options, const QString &token) {
    using kiv::desktop::Instance;
    Instance instance(QDBusConnection::sessionBus(), options.places.profile,
                      options.places.lockFile);
    // What keeps nothing may run beside others.
    const Instance::Place place = options.snapshot
                                      ? Instance::Place::First
                                      : instance.claim(options.links, token, handOverPatience);
    switch (place) {
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
    program.serve(instance);
    program.start();
    for (const QString &link : options.links)
        program.openLink(link);
    return program.window() ? QGuiApplication::exec() : 1;
}

} // namespace

int main(int argc, char **argv) {
    kiv::app::Application::prepareProcess();
    const QString token = startToken();
    // What the first text and the first line of the log need, while the platform's plugin is
    // loaded. It reads the environment, which is written above.
    const std::jthread ahead([] {
        FcInit();
        kiv::desktop::LogText::prepare();
    });
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("kiv"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("KIV"));
    QGuiApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));
    QGuiApplication::setDesktopFileName(kiv::desktop::desktopId);
    try {
        return run(kiv::app::readOptions(application.arguments()), token);
    } catch (const kiv::BaseUrlError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
