#pragma once

class QCoreApplication;

namespace kiv {

/// Lets SIGTERM, SIGINT and SIGHUP end the event loop, so that what is to be done at the end is
/// done. A second one of them ends the process at once. Called once.
void quitOnSignals(QCoreApplication &application);

} // namespace kiv
