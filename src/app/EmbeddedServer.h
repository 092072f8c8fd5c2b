#pragma once

#include "base/Cancel.h"
#include "base/Clock.h"
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

    /// Throws ProcessError when the server does not come up, Cancelled.
    QCoro::Task<Greeting> start(Cancel cancel);
    qint64 processId() const { return m_process.processId(); }

private:
    void hear();

    Clock &m_clock;
    QProcess m_process;
    QString m_complaint; ///< the last line that the server complained with
};

} // namespace kiv::app
