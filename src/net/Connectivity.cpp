#include "net/Connectivity.h"

#include "base/BaseUrl.h"

#include <QNetworkInformation>

namespace kiv::net {

SystemConnectivity::SystemConnectivity(QObject *parent) : Connectivity(parent) {
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
        connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this,
                &Connectivity::changed);
}

bool SystemConnectivity::reaches(const QUrl &url) const {
    const auto *system = QNetworkInformation::instance();
    return !system || isLoopback(url.host()) ||
           system->reachability() != QNetworkInformation::Reachability::Disconnected;
}

} // namespace kiv::net
