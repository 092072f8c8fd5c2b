#pragma once

#include "base/ChildProcess.h"
#include "store/SessionRoom.h"

#include <QCoroTask>
#include <QProcess>
#include <QUrl>

namespace kiv::app {

/// The workspace server that runs beside the client when no hosted one is named. It ends with
/// this object, and by itself when the client is killed: it watches its standard input. What it
/// complains of goes to the log.
class EmbeddedServer {
public:
    /// Where the server listens and the account it offers for a look around.
    struct Greeting {
        QUrl url;
        store::SampleAccount sample;
        /// Where a damaged database has gone; empty when there was none.
        QString setAside;
    };

    EmbeddedServer(Clock &clock, const QString &program, const QStringList &arguments);
    ~EmbeddedServer();

    /// Throws ProcessError when the server does not come up, Cancelled. A server that is started
    /// again has the address of before if that is free.
    QCoro::Task<Greeting> start(Cancel cancel);
    /// Waits until the server has ended. Throws Cancelled.
    QCoro::Task<void> ended(Cancel cancel) { return untilEnded(&m_process, std::move(cancel)); }
    qint64 processId() const { return m_process.processId(); }

private:
    void hear();

    Clock &m_clock;
    const QStringList m_arguments;
    int m_port = 0; ///< that the server had; 0 for any
    QProcess m_process;
    QString m_complaint; ///< the last line that the server complained with
};

} // namespace kiv::app
