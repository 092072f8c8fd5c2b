#include "support/Processes.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace kiv::test {

using namespace Qt::StringLiterals;

QByteArray processFile(qint64 process, const QString &name) {
    QFile file(u"/proc/%1/%2"_s.arg(process).arg(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

bool isRunning(qint64 process) {
    const QByteArray state = processFile(process, u"stat"_s);
    return !state.isEmpty() && !state.contains(") Z ");
}

QList<qint64> children(qint64 process) {
    QList<qint64> found;
    const QDir tasks(u"/proc/%1/task"_s.arg(process));
    const QStringList threads = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        const QByteArray list = processFile(process, u"task/"_s + thread + u"/children"_s);
        for (const QByteArray &child : list.simplified().split(' ')) {
            if (!child.isEmpty())
                found.append(child.toLongLong());
        }
    }
    return found;
}

QList<qint64> family(qint64 root) {
    QList<qint64> found{root};
    for (const qint64 child : children(root))
        found += family(child);
    return found;
}

QList<qint64> renderers() {
    QList<qint64> found;
    for (const qint64 child : children(getpid())) {
        if (processFile(child, u"cmdline"_s).contains("QtWebEngineProcess"))
            found += family(child).sliced(1);
    }
    return found;
}

void letEngineRunAsRoot() {
    if (geteuid() != 0)
        return;
    std::fputs("Running as root: the web engine's sandbox is off for these tests.\n", stderr);
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

} // namespace kiv::test
