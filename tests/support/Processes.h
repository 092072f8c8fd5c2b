#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace kiv::test {

/// What a file of the kernel says of a process; empty when there is no such process any more.
QByteArray processFile(qint64 process, const QString &name);
/// Whether it is there, and not only waiting for its parent to hear of its end.
bool isRunning(qint64 process);
/// The processes whose parent this one is.
QList<qint64> children(qint64 process);
/// Every process that `root` has started, itself included.
QList<qint64> family(qint64 root);
/// The processes that this one's web engine runs pages in: what its children have started.
QList<qint64> renderers();
/// Where root runs the test, the web engine can shut nothing in: it is told not to try, and the
/// test says so. Before the engine starts.
void letEngineRunAsRoot();

} // namespace kiv::test
