#include "base/BaseUrl.h"

#include <QHostAddress>

namespace kiv {

using namespace Qt::StringLiterals;

namespace {

/// What is said of an address goes to the terminal: not the name and the password that may stand
/// before its host.
QString quoted(const QString &text) {
    const qsizetype at = text.lastIndexOf(u'@');
    return at < 0 ? text : u'…' + text.sliced(at);
}

[[noreturn]] void refuse(const QString &text, const char *why) {
    throw BaseUrlError("Cannot use the address \"" + quoted(text).toStdString() + "\": " + why);
}

} // namespace

bool isLoopback(const QString &host) {
    return host == u"localhost"_s || QHostAddress(host).isLoopback();
}

bool isWebAddress(const QUrl &address) {
    const QString scheme = address.scheme();
    return (scheme == "https"_L1 || scheme == "http"_L1) && !address.host().isEmpty();
}

QString pictureAddress(const QString &named) {
    const QUrl url(named);
    return url.isRelative() || isWebAddress(url) ? named : QString();
}

QUrl parseBaseUrl(const QString &text) {
    QUrl url(text.trimmed(), QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty())
        refuse(text, "it is not a complete web address.");
    if (url.scheme() != u"https"_s && url.scheme() != u"http"_s)
        refuse(text, "it must begin with https:// (or http:// on this computer).");
    if (url.scheme() == u"http"_s && !isLoopback(url.host()))
        refuse(text, "plain http is only allowed on this computer; use https.");
    if (!url.userInfo().isEmpty())
        refuse(text, "it must not carry a name or a password.");
    url.setQuery(QString());
    url.setFragment(QString());
    QString path = url.path();
    while (path.endsWith(u'/'))
        path.chop(1);
    url.setPath(path);
    return url;
}

QUrl appendPath(const QUrl &base, const QString &path) {
    return QUrl(base.toString(QUrl::FullyEncoded | QUrl::StripTrailingSlash) + u'/' + path,
                QUrl::StrictMode);
}

QString pathSegment(const QString &text) {
    // A point or two climb even when they are encoded, which QUrl takes back: they are encoded
    // twice, to ask for what nobody has.
    if (text == u"."_s || text == u".."_s)
        return u"%252E"_s.repeated(text.size());
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

int portOf(const QUrl &url) {
    const bool isSecure = url.scheme() == "https"_L1 || url.scheme() == "wss"_L1;
    return url.port(isSecure ? 443 : 80);
}

bool isSameOrigin(const QUrl &one, const QUrl &other) {
    return one.scheme() == other.scheme() && one.host() == other.host() &&
           portOf(one) == portOf(other);
}

QString originOf(const QUrl &url) {
    return url.toString(QUrl::FullyEncoded | QUrl::RemovePath | QUrl::RemoveQuery |
                        QUrl::RemoveFragment | QUrl::RemoveUserInfo);
}

} // namespace kiv
