#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace kiv::web {

/// Lets a page fetch from its own server and over https, and no file of this computer. A server on
/// this computer may have its sockets on another port.
class RequestGate : public QWebEngineUrlRequestInterceptor {
public:
    /// With no home yet, nothing but https is let through.
    explicit RequestGate(QUrl home = {}) : m_home(std::move(home)) {}
    const QUrl &home() const { return m_home; }
    void setHome(const QUrl &home) { m_home = home; }
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    bool admits(const QUrl &url) const;

    QUrl m_home;
};

} // namespace kiv::web
