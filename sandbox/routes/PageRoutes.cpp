#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

constexpr qsizetype longestBeaconName = 64;

Reply countBeacon(Services &services, const Call &call) {
    const QString name = stringMember(call.json(), "name"_L1);
    if (name.isEmpty() || name.size() > longestBeaconName)
        throw Refusal(400, u"A beacon needs a name."_s, u"name_missing"_s);
    services.database.run([&](Sql &sql) {
        sql.exec(u"INSERT INTO beacons (account, name, count) VALUES (?, ?, 1)"
                 u" ON CONFLICT (account, name) DO UPDATE SET count = count + 1"_s,
                 {call.account, name});
    });
    return Reply::json(QJsonObject{{u"ok"_s, true}}, 202);
}

Reply releaseFeed(const Services &services, const Call &call) {
    const QString feed =
        u"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
        "<rss version=\"2.0\" xmlns:kiv=\"urn:kiv:release\">\n"
        "  <channel>\n"
        "    <title>KIV desktop</title>\n"
        "    <link>%1/downloads/</link>\n"
        "    <item>\n"
        "      <title>%2</title>\n"
        "      <kiv:shortVersionString>%2</kiv:shortVersionString>\n"
        "    </item>\n"
        "  </channel>\n"
        "</rss>\n"_s.arg(call.origin, services.options.newestRelease.toHtmlEscaped());
    return {.body = feed.toUtf8(), .type = "application/xml"};
}

Reply downloadsPage(const Services &services) {
    return Reply::html(
        u"<!doctype html><html><head><meta charset=\"utf-8\"><title>Downloads</title>"
        "</head><body><h1>KIV desktop</h1><p>The newest release is %1.</p></body>"
        "</html>"_s.arg(services.options.newestRelease.toHtmlEscaped()));
}

} // namespace

void addPageRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.post("/api/v2/rum", Access::SignedIn,
                [&services](const Call &call) { return countBeacon(services, call); });
    router.get("/downloads/kiv-appcast\\.xml", Access::Everybody,
               [&services](const Call &call) { return releaseFeed(services, call); });
    router.get("/downloads/", Access::Everybody,
               [&services](const Call &) { return downloadsPage(services); });
}

} // namespace kiv::sandbox
