#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace kiv::web {

/// Whether two addresses have scheme, host and port in common.
bool isSameOrigin(const QUrl &one, const QUrl &other);

/// Lets a page fetch from its own server and over https, and nothing from this computer.
class RequestGate : public QWebEngineUrlRequestInterceptor {
public:
    explicit RequestGate(QUrl home) : m_home(std::move(home)) {}
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    bool admits(const QUrl &url) const;

    QUrl m_home;
};

} // namespace kiv::web
