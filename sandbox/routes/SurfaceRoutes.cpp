// The platform's own pages that answers link to.

#include "Router.h"
#include "Routes.h"
#include "Services.h"
#include "pages/Pages.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

using Make = std::function<HtmlPage(Sql &, const Call &)>;

/// A person reads what comes back, whether there is a page or not.
Reply show(Services &services, const Call &call, const Make &make) {
    if (call.account.isEmpty())
        return signInPage().reply(401);
    try {
        return services.database.run([&](Sql &sql) { return make(sql, call); }).reply();
    } catch (const Refusal &refusal) {
        return HtmlPage(refusal.body()[u"error"_s].toString()).reply(refusal.status());
    }
}

ProjectKey projectOf(Sql &sql, const Call &call) {
    const QString slug = call.segment(1).toLower();
    const auto row = sql.row(u"SELECT label FROM projects WHERE account = ? AND slug = ?"_s,
                             {call.account, slug});
    if (!row)
        throw Refusal(404, u"There is no such project."_s, u"not_found"_s);
    return {call.account, slug, row->text(0)};
}

} // namespace

void addSurfaceRoutes(Router &router, Services &services) {
    const auto page = [&](const std::string &path, Make make) {
        router.get(path, Router::Access::Everybody,
                   [&services, make = std::move(make)](const Call &call) {
                       return show(services, call, make);
                   });
    };
    const std::string slug = "/([A-Za-z0-9-]+)";
    page("/project" + slug, [](Sql &sql, const Call &call) {
        return projectPage(sql, projectOf(sql, call),
                           QString::fromStdString(call.request.get_param_value("tab")));
    });
    page("/dashboard" + slug,
         [](Sql &sql, const Call &call) { return dashboardPage(sql, projectOf(sql, call)); });
    page("/team" + slug,
         [](Sql &sql, const Call &call) { return teamPage(sql, projectOf(sql, call)); });
    page("/p" + slug,
         [](Sql &sql, const Call &call) { return publicPage(sql, projectOf(sql, call)); });
    page("/agent-profile",
         [](Sql &sql, const Call &call) { return agentsPage(sql, call.account); });
}

} // namespace kiv::sandbox
