#include "net/Connectivity.h"

#include "base/BaseUrl.h"

#include <QNetworkInformation>

namespace kiv::net {

bool Connectivity::reaches(const QUrl &url) const {
    if (m_serverDown)
        return false;
    const bool hasAnswered = !m_answered.isEmpty() && m_answered == url.host();
    return hasAnswered || isKnownToReach(url);
}

void Connectivity::probe(const QUrl &url) {
    m_probe = std::make_unique<QTcpSocket>();
    connect(m_probe.get(), &QTcpSocket::connected, this, [this, host = url.host()] {
        m_answered = host;
        m_probe.release()->deleteLater();
        Q_EMIT changed();
    });
    m_probe->connectToHost(url.host(), static_cast<quint16>(portOf(url)));
}

void Connectivity::setServerDown(bool down) {
    if (std::exchange(m_serverDown, down) != down)
        Q_EMIT changed();
}

void Connectivity::takeNews() {
    m_probe.reset();
    m_answered.clear();
    Q_EMIT changed();
}

SystemConnectivity::SystemConnectivity(QObject *parent) : Connectivity(parent) {
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
        connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this,
                &SystemConnectivity::takeNews);
}

bool SystemConnectivity::isKnownToReach(const QUrl &url) const {
    const auto *system = QNetworkInformation::instance();
    return !system || isLoopback(url.host()) ||
           system->reachability() != QNetworkInformation::Reachability::Disconnected;
}

} // namespace kiv::net
