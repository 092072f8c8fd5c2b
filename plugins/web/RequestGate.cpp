#include "RequestGate.h"

#include "base/BaseUrl.h"

namespace kiv::web {

using namespace Qt::StringLiterals;

namespace {

bool isSameHost(const QUrl &one, const QUrl &other) {
    return one.host() == other.host() && portOf(one) == portOf(other);
}

} // namespace

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
