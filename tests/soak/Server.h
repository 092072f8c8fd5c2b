#pragma once

#include <QNetworkAccessManager>
#include <QProcess>
#include <QUrl>

namespace kiv::soak {

/// The workspace server of the run, always on the same port: it can be struck with faults, killed,
/// frozen and started again.
class Server {
public:
    explicit Server(const QString &dataDir);
    ~Server();

    const QUrl &url() const { return m_url; }

    /// Replaces the faults in force. A server that is down or frozen learns nothing of them.
    void setFaults(const QStringList &faults);
    void kill();
    void start();
    void freeze();
    void thaw();
    bool isUp() const { return m_process.state() == QProcess::Running; }
    /// Whether it has ended without having been killed.
    bool hasCrashed() const { return m_hasCrashed; }

    /// Starts, thaws and frees the server of faults; false when it does not answer in time.
    bool heal();

private:
    QStringList arguments() const;

    const QString m_dataDir;
    QProcess m_process;
    bool m_isKilled = false;
    bool m_hasCrashed = false;
    QUrl m_url;
    QNetworkAccessManager m_control;
};

} // namespace kiv::soak
