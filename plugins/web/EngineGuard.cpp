#include "EngineGuard.h"

#include <QCoreApplication>
#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace kiv::web::EngineGuard {

namespace {

constexpr const char *flagsVariable = "QTWEBENGINE_CHROMIUM_FLAGS";

bool isSandboxOff() {
    return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1 ||
           qgetenv(flagsVariable).contains("--no-sandbox");
}

#ifdef Q_OS_LINUX
/// The engine shuts its processes in by user namespaces, which a system may forbid.
bool mayMakeNamespaces() {
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    int status = 1;
    return child > 0 && waitpid(child, &status, 0) == child && status == 0;
}
#endif

} // namespace

QString refusal(Use use) {
#ifdef Q_OS_LINUX
    if (isSandboxOff())
        return {};
    const bool isCall = use == Use::Calls;
    if (geteuid() == 0)
        return isCall
                   ? QCoreApplication::translate("EngineGuard",
                                                 "The root user cannot place calls: the web engine "
                                                 "cannot protect this computer from what it loads.")
                   : QCoreApplication::translate(
                         "EngineGuard", "Pages are not shown to the root user: the web engine "
                                        "cannot protect this computer from them.");
    if (!mayMakeNamespaces())
        return isCall ? QCoreApplication::translate(
                            "EngineGuard",
                            "Calls cannot be placed: this system does not let the web engine "
                            "protect the computer from what it loads.")
                      : QCoreApplication::translate(
                            "EngineGuard", "Pages are not shown: this system does not let the web "
                                           "engine protect the computer from them.");
#else
    Q_UNUSED(use)
#endif
    return {};
}

void chooseFlags(bool dark) {
    const QByteArray flags = qgetenv(flagsVariable);
    if (dark && !flags.contains("preferredColorScheme"))
        qputenv(flagsVariable, (flags + " --blink-settings=preferredColorScheme=0").trimmed());
}

} // namespace kiv::web::EngineGuard
