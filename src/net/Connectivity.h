#pragma once

#include <QObject>
#include <QTcpSocket>
#include <QUrl>

#include <memory>

namespace kiv::net {

/// Whether the machine is online. Requests wait for it instead of failing at once.
class Connectivity : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether an attempt to connect to `url` makes sense now.
    bool reaches(const QUrl &url) const;
    /// Asks the server itself, as the system may be wrong. One that answers counts as within reach
    /// until the system has news.
    void probe(const QUrl &url);
    /// The server is known to be down, whatever the network is like.
    void setServerDown(bool down);
    bool isServerDown() const { return m_serverDown; }

Q_SIGNALS:
    void changed();

protected:
    /// What is known without asking.
    virtual bool isKnownToReach(const QUrl &url) const = 0;
    /// The system tells something else: what was found out by asking counts no more.
    void takeNews();

private:
    std::unique_ptr<QTcpSocket> m_probe;
    bool m_serverDown = false;
    QString m_answered; ///< host of the server that was asked and answered
};

/// What the operating system says. Where it says nothing, the machine counts as online; this
/// computer itself can always be reached.
class SystemConnectivity : public Connectivity {
    Q_OBJECT
public:
    explicit SystemConnectivity(QObject *parent = nullptr);

protected:
    bool isKnownToReach(const QUrl &url) const override;
};

} // namespace kiv::net
