#include "text/WebLink.h"

#include "base/BaseUrl.h"

#include <QUrl>
#include <QUrlQuery>

#include <algorithm>

namespace kiv::text {

using namespace Qt::StringLiterals;

namespace {

bool isPlain(QChar c) {
    return c > u' ' && c < u'\u007f';
}

QString withoutDisguise(const QString &text) {
    QString shown;
    const QList<uint> codes = text.toUcs4();
    for (const char32_t code : codes) {
        const bool isSeen = QChar::isPrint(code) && !QChar::isSpace(code) && !QChar::isMark(code);
        const QString c = QString::fromUcs4(&code, 1);
        shown += isSeen ? c : QString::fromLatin1(QUrl::toPercentEncoding(c));
    }
    return shown;
}

/// As it is seen and followed.
QString written(const QUrl &url) {
    constexpr auto place = QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment;
    return url.toString(QUrl::FullyEncoded | place) +
           withoutDisguise(
               url.toString(QUrl::PrettyDecoded | QUrl::RemoveScheme | QUrl::RemoveAuthority));
}

/// Of a letter, only what is written in it: of its lines, those of the text alone.
QString letter(QUrl url) {
    QUrlQuery kept;
    for (const auto &[name, value] : QUrlQuery(url).queryItems(QUrl::FullyEncoded)) {
        const bool isLine = !value.contains("%0"_L1);
        if (name == "body"_L1 || ((name == "subject"_L1 || name == "cc"_L1) && isLine))
            kept.addQueryItem(name, value);
    }
    url.setQuery(kept);
    url.setFragment({}); // some programs look for a question mark behind it
    return url.toString(QUrl::FullyEncoded);
}

/// Whether its host is written as it is looked up, and no name stands before it.
bool namesItsHost(const QString &link, const QUrl &url) {
    const QString place = u"://"_s + url.authority(QUrl::FullyEncoded);
    return url.userInfo().isEmpty() &&
           QStringView(link).sliced(url.scheme().size()).startsWith(place, Qt::CaseInsensitive);
}

} // namespace

QString linkTarget(const QString &link) {
    if (link.startsWith(u'/'))
        return link.startsWith("//"_L1) || link.contains(u'\\') ? QString() : withoutDisguise(link);
    QUrl url(link);
    if (url.scheme() == "mailto"_L1)
        return letter(url);
    if (!isWebAddress(url))
        return {};
    if (namesItsHost(link, url) && std::ranges::all_of(link, isPlain))
        return link;
    url.setUserInfo({});
    return written(url);
}

} // namespace kiv::text
