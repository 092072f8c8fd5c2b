#include "net/PersistentCookieJar.h"

#include "base/BaseUrl.h"
#include "base/PrivateFile.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkCookie>

namespace kiv::net {

using namespace Qt::StringLiterals;

namespace {

constexpr auto hostKey = "host"_L1;
constexpr auto cookieKey = "cookie"_L1;

/// Measured by the system's time of day: Qt reads Max-Age against that.
bool isExpired(const QNetworkCookie &cookie) {
    return !cookie.isSessionCookie() && cookie.expirationDate() < QDateTime::currentDateTimeUtc();
}

/// The host stands beside the cookie's own form, which has no way to write every host.
QJsonObject toJson(QNetworkCookie cookie) {
    const QString host = cookie.domain();
    cookie.setDomain(QString());
    return {{hostKey, host}, {cookieKey, QString::fromLatin1(cookie.toRawForm())}};
}

QList<QNetworkCookie> fromJson(const QJsonObject &entry) {
    const QString host = entry.value(hostKey).toString();
    QList<QNetworkCookie> cookies =
        QNetworkCookie::parseCookies(entry.value(cookieKey).toString().toLatin1());
    for (QNetworkCookie &cookie : cookies)
        cookie.setDomain(host);
    cookies.removeIf([&](const auto &cookie) { return host.isEmpty() || isExpired(cookie); });
    return cookies;
}

} // namespace

PersistentCookieJar::PersistentCookieJar(QString path, QObject *parent)
    : QNetworkCookieJar(parent), m_path(std::move(path)) {
    load();
}

PersistentCookieJar::~PersistentCookieJar() {
    if (m_savePending)
        save();
}

QList<QNetworkCookie> PersistentCookieJar::cookiesForUrl(const QUrl &url) const {
    QUrl asked = url;
    if (isLoopback(url.host()))
        asked.setScheme(u"https"_s); // nobody listens in on this computer: Secure cookies go out
    return QNetworkCookieJar::cookiesForUrl(asked);
}

bool PersistentCookieJar::setCookiesFromUrl(const QList<QNetworkCookie> &cookies, const QUrl &url) {
    const QList<QNetworkCookie> before = allCookies();
    for (QNetworkCookie cookie : cookies) {
        cookie.setDomain(url.host());
        if (cookie.path().isEmpty())
            cookie.setPath(u"/"_s); // one session for the whole host, wherever it signed in
        insertCookie(cookie);       // one that has expired removes its namesake
    }
    if (allCookies() == before)
        return false;
    scheduleSave();
    return true;
}

void PersistentCookieJar::clear() {
    setAllCookies({});
    m_savePending = false;
    QFile::remove(m_path);
}

void PersistentCookieJar::load() {
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isArray())
        qWarning("The saved session cannot be read; sign in again.");
    QList<QNetworkCookie> cookies;
    for (const QJsonValue entry : document.array())
        cookies += fromJson(entry.toObject());
    setAllCookies(cookies);
}

void PersistentCookieJar::save() {
    m_savePending = false;
    QJsonArray entries;
    for (const QNetworkCookie &cookie : allCookies()) {
        if (!isExpired(cookie))
            entries.append(toJson(cookie));
    }
    const QString failure = PrivateFile::write(m_path, QJsonDocument(entries).toJson());
    if (!failure.isEmpty())
        qWarning("The session cannot be saved: %s", qUtf8Printable(failure));
}

void PersistentCookieJar::scheduleSave() {
    if (std::exchange(m_savePending, true))
        return;
    const auto saveIfStillDue = [this] {
        if (m_savePending)
            save();
    };
    QMetaObject::invokeMethod(this, saveIfStillDue, Qt::QueuedConnection);
}

} // namespace kiv::net
