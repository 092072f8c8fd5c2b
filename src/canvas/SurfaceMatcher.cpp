#include "canvas/SurfaceMatcher.h"

#include "base/Regex.h"
#include "canvas/LinkScanner.h"

#include <QUrlQuery>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Punctuation of the sentence around an address.
QStringView withoutPunctuation(QStringView target) {
    const QString marks = u".,;:!?…)»"_s;
    while (!target.isEmpty() && marks.contains(target.front()))
        target = target.sliced(1);
    while (!target.isEmpty() && marks.contains(target.back()))
        target.chop(1);
    return target;
}

bool isSurfacePath(const QString &path) {
    static const Regex page(u"^/(project|dashboard|team|p)/[a-z0-9-]+$", Regex::CaseInsensitive);
    static const Regex profile(u"^/agent-profile$", Regex::CaseInsensitive);
    return page.contains(path) || profile.contains(path);
}

QString tabName(const QString &tab) {
    static const QHash<QString, QString> names{
        {u"settings"_s, u"Settings"_s}, {u"feed"_s, u"Goals"_s},
        {u"metrics"_s, u"Metrics"_s},   {u"knowledge"_s, u"Knowledge"_s},
        {u"finance"_s, u"Finance"_s},   {u"tasks"_s, u"Work"_s},
    };
    return names.value(tab);
}

} // namespace

std::optional<SurfaceLink> SurfaceMatcher::match(QStringView text, const QUrl &baseUrl) {
    LinkScanner links(text);
    while (const auto found = links.next()) {
        if (const auto link = page(withoutPunctuation(*found).toString(), baseUrl))
            return link;
    }
    return std::nullopt;
}

std::optional<SurfaceLink> SurfaceMatcher::page(const QString &link, const QUrl &baseUrl) {
    QUrl url(link, QUrl::StrictMode);
    if (link.isEmpty() || !url.isValid())
        return std::nullopt;
    if (url.isRelative())
        url = baseUrl.resolved(url);
    const bool isOurs =
        !url.host().isEmpty() && url.host().compare(baseUrl.host(), Qt::CaseInsensitive) == 0;
    if (!isOurs || !isSurfacePath(url.path(QUrl::FullyEncoded)))
        return std::nullopt;
    // As it is written out: QUrl tells addresses apart that are written alike ("#" in a fragment).
    url = QUrl::fromEncoded(url.toEncoded());
    return SurfaceLink{url, title(url)};
}

QString SurfaceMatcher::title(const QUrl &url) {
    const QString tab = tabName(QUrlQuery(url).queryItemValue(u"tab"_s));
    if (!tab.isEmpty())
        return u"Project "_s + tab;
    const QString path = url.path().toLower();
    if (path.startsWith(u"/agent-profile"))
        return u"Agent profile"_s;
    if (path.startsWith(u"/dashboard/"))
        return u"Dashboard"_s;
    if (path.startsWith(u"/team/"))
        return u"Team"_s;
    if (path.startsWith(u"/p/"))
        return u"Project · public view"_s;
    return u"Project"_s;
}

} // namespace kiv::canvas
