#include "net/PersistentCookieJar.h"

#include "base/BaseUrl.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkCookie>

#include <algorithm>

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

QList<QNetworkCookie> fromJson(const QJsonArray &entries) {
    QList<QNetworkCookie> all;
    for (const QJsonValue entry : entries) {
        const QString host = entry[hostKey].toString();
        const QByteArray form = entry[cookieKey].toString().toLatin1();
        QList<QNetworkCookie> cookies = QNetworkCookie::parseCookies(form);
        for (QNetworkCookie &cookie : cookies)
            cookie.setDomain(host);
        if (!host.isEmpty())
            all += cookies;
    }
    return all;
}

} // namespace

PersistentCookieJar::PersistentCookieJar(QString file, Clock *clock, SecretStore *secrets,
                                         QObject *parent)
    : QNetworkCookieJar(parent), m_vault(std::move(file), clock, secrets) {
    connect(&m_vault, &SessionVault::found, this, &PersistentCookieJar::join);
    connect(&m_vault, &SessionVault::settled, this, &PersistentCookieJar::settled);
    connect(&m_vault, &SessionVault::written, this, &PersistentCookieJar::written);
    setAllCookies(fromJson(m_vault.open()));
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
    m_vault.forget();
}

/// What has been set meanwhile is newer than what was kept.
void PersistentCookieJar::join(const QJsonArray &found) {
    const bool isChanged = !allCookies().isEmpty();
    bool isNews = false;
    for (const QNetworkCookie &cookie : fromJson(found)) {
        const auto isNamesake = [&](const auto &other) { return other.hasSameIdentifier(cookie); };
        const QList<QNetworkCookie> known = allCookies();
        if (std::none_of(known.begin(), known.end(), isNamesake))
            isNews |= insertCookie(cookie);
    }
    if (isChanged)
        scheduleSave();
    if (isNews)
        Q_EMIT joined();
}

void PersistentCookieJar::save() {
    m_savePending = false;
    QJsonArray entries;
    for (const QNetworkCookie &cookie : allCookies()) {
        if (!isExpired(cookie))
            entries.append(toJson(cookie));
    }
    m_vault.keep(entries);
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
