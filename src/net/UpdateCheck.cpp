#include "net/UpdateCheck.h"

#include "base/BaseUrl.h"
#include "base/Regex.h"
#include "net/APIClient.h"

#include <QStringDecoder>

namespace kiv::net::UpdateCheck {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 8s;
constexpr qsizetype largestFeed = 1024 * 1024;

/// The newest version that a feed names; among equal ones the first.
QString newestIn(const QString &feed) {
    static const Regex pattern(uR"(shortVersionString>\s*([0-9][0-9.]{0,31})\s*<)");
    QString newest;
    for (const Regex::Match &match : pattern.findAll(feed)) {
        const QStringView version = match.captured(1);
        if (newest.isEmpty() || AppVersion::isNewer(version, newest))
            newest = version.toString();
    }
    return newest;
}

} // namespace

QUrl feedURL(const QUrl &baseUrl) {
    return appendPath(baseUrl, u"downloads/kiv-appcast.xml"_s);
}

QUrl downloadsPage(const QUrl &baseUrl) {
    return appendPath(baseUrl, u"downloads/"_s);
}

QCoro::Task<std::optional<UpdateInfo>> latest(APIClient *client, AppVersion running,
                                              Cancel cancel) {
    if (running.isDevelopment())
        co_return std::nullopt;
    const QUrl base = client->baseUrl();
    HttpRequest request{.method = "GET", .url = feedURL(base), .timeout = patience};
    HttpResponse response;
    try {
        response = co_await client->fetch(std::move(request), cancel);
    } catch (const std::exception &) {
        cancel.throwIfRequested();
        co_return std::nullopt;
    }
    if (response.body.size() > largestFeed)
        co_return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString feed = decoder(response.body);
    if (response.status != 200 || decoder.hasError())
        co_return std::nullopt;
    const QString newest = newestIn(feed);
    if (!AppVersion::isNewer(newest, running.shortVersion))
        co_return std::nullopt;
    co_return UpdateInfo{.version = newest, .page = downloadsPage(base)};
}

} // namespace kiv::net::UpdateCheck
