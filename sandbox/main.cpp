// kiv-sandbox: the workspace server that the client brings along.

#include "Http.h"
#include "Options.h"
#include "Secrets.h"
#include "Server.h"
#include "base/QuitSignals.h"
#include "base/Version.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonObject>
#include <QLockFile>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace kiv::sandbox;

namespace {

/// Ends the event loop when the parent, which holds the other end, is gone.
void quitWithStandardInput(QCoreApplication &application) {
    auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [notifier] {
        char ignored[256];
        if (::read(STDIN_FILENO, ignored, sizeof ignored) <= 0) {
            notifier->setEnabled(false);
            QCoreApplication::quit();
        }
    });
}

void announce(const Server &server) {
    const QJsonObject sample{{u"email"_s, server.sampleEmail()},
                             {u"password"_s, server.samplePassword()}};
    QJsonObject greeting{{u"url"_s, server.url()}, {u"sample"_s, sample}};
    if (!server.setAside().isEmpty())
        greeting.insert(u"setAside"_s, server.setAside());
    const QByteArray line = compact(greeting);
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

int fail(const char *why) {
    std::fprintf(stderr, "kiv-sandbox: %s\n", why);
    return 2;
}

int run(QCoreApplication &application) {
    const Options options = parseOptions(QCoreApplication::arguments());
    if (!QDir().mkpath(options.dataDir))
        return fail("the data folder cannot be made");
    QLockFile lock(options.dataDir + u"/lock"_s);
    // Who has it holds the system's lock on it, too. What a killed server has left is no obstacle,
    // even where another one has its process id by now.
    lock.setStaleLockTime(1000);
    if (!lock.tryLock(2000))
        return fail(lock.error() == QLockFile::LockFailedError
                        ? "another server works in this data folder"
                        : "the data folder cannot be written to");
    startSecrets();
    Server server(options);
    kiv::quitOnSignals(application);
    std::signal(SIGPIPE, SIG_IGN);
    if (!options.stay)
        quitWithStandardInput(application);
    announce(server);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    ::umask(S_IRWXG | S_IRWXO); // all that it keeps is for its user alone
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"kiv-sandbox"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(KIV_VERSION));
    try {
        return run(application);
    } catch (const std::runtime_error &error) {
        return fail(error.what());
    }
}
