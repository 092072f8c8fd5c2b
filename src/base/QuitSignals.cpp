#include "base/QuitSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace kiv {

namespace {

constexpr int ending[] = {SIGTERM, SIGINT, SIGHUP};
int ends[2];

void onSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &byte, 1);
    for (const int number : ending)
        std::signal(number, SIG_DFL);
}

} // namespace

void quitOnSignals(QCoreApplication &application) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        qFatal("No socket pair for signals");
    auto *notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, &application);
    // Nothing is asked: whoever ends the session does not wait for answers.
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::exit();
    });
    for (const int number : ending)
        std::signal(number, onSignal);
}

} // namespace kiv
