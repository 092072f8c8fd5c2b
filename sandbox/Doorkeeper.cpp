#include "Doorkeeper.h"

#include "Sessions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qulonglong largestJson = 1024 * 1024;
/// The largest upload and the multipart frame around it.
constexpr qulonglong largestUpload = 50 * 1024 * 1024 + 64 * 1024;

QString header(const httplib::Request &request, const char *name) {
    return QString::fromStdString(request.get_header_value(name));
}

} // namespace

void Doorkeeper::check(const httplib::Request &request) const {
    checkHost(request);
    if (request.method != "GET" && request.method != "HEAD") {
        checkOrigin(request);
        checkBody(request);
    }
    // Of many ranges the library would make a reply many times as long as the whole.
    if (request.ranges.size() > 1)
        throw Refusal(416, u"Ask for one range at a time."_s, u"too_many_ranges"_s);
}

QString Doorkeeper::originOf(const httplib::Request &request) {
    return u"http://"_s + header(request, "Host");
}

/// A page of another site can make a browser send requests here: it can neither choose the Origin
/// header, nor, with a name of its own pointed at loopback, the Host header.
void Doorkeeper::checkHost(const httplib::Request &request) const {
    const QString host = header(request, "Host");
    if (host != u"127.0.0.1:%1"_s.arg(m_port) && host != u"localhost:%1"_s.arg(m_port))
        throw Refusal(421, u"This server does not answer for the host \"%1\"."_s.arg(host),
                      u"wrong_host"_s);
}

void Doorkeeper::checkOrigin(const httplib::Request &request) {
    const QString origin = header(request, "Origin");
    const QString own = originOf(request);
    if (origin != own)
        throw Refusal(
            403,
            u"The CSRF check failed: the Origin header is \"%1\", not \"%2\"."_s.arg(origin, own),
            u"csrf"_s);
}

/// The library reads a body without a length to its end, however far that is, and unpacks one that
/// is packed to whatever comes out.
void Doorkeeper::checkBody(const httplib::Request &request) const {
    if (request.has_header("Content-Encoding"))
        throw Refusal(415, u"Send the request unpacked."_s, u"packed"_s);
    bool isKnown = false;
    const qulonglong length = header(request, "Content-Length").toULongLong(&isKnown);
    if (!isKnown || request.has_header("Transfer-Encoding"))
        throw Refusal(411, u"The request has to say how long it is."_s, u"length_required"_s);
    const bool mayBeFiles = std::ranges::any_of(m_fileRoutes, [&](const std::regex &route) {
        return std::regex_match(request.path, route);
    });
    if (length > (mayBeFiles ? largestUpload : largestJson))
        throw Refusal(413, u"The request is too large."_s, u"too_large"_s);
    if (mayBeFiles && m_sessions.account(cookie(request, sessionCookie)).isEmpty())
        throw Refusal(401, u"Sign in first."_s, u"unauthorized"_s);
}

} // namespace kiv::sandbox
