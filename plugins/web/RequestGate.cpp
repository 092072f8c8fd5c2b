#include "RequestGate.h"

#include "base/BaseUrl.h"

namespace kiv::web {

using namespace Qt::StringLiterals;

namespace {

int portOf(const QUrl &url) {
    const bool isSecure = url.scheme() == u"https"_s || url.scheme() == u"wss"_s;
    return url.port(isSecure ? 443 : 80);
}

bool isSameHost(const QUrl &one, const QUrl &other) {
    return one.host().compare(other.host(), Qt::CaseInsensitive) == 0 &&
           portOf(one) == portOf(other);
}

} // namespace

bool isSameOrigin(const QUrl &one, const QUrl &other) {
    return one.scheme() == other.scheme() && isSameHost(one, other);
}

void RequestGate::interceptRequest(QWebEngineUrlRequestInfo &request) {
    if (!admits(request.requestUrl()))
        request.block(true);
}

bool RequestGate::admits(const QUrl &url) const {
    const QString scheme = url.scheme();
    if (scheme == u"https"_s || scheme == u"wss"_s || scheme == u"data"_s || scheme == u"blob"_s)
        return true;
    if (scheme == u"ws"_s && isLoopback(url.host()) && isLoopback(m_home.host()))
        return true;
    return (scheme == u"http"_s || scheme == u"ws"_s) && isSameHost(url, m_home);
}

} // namespace kiv::web
