// The platform's own pages that answers link to.

#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

QString page(const QString &title, const QString &body) {
    return u"<!doctype html><html lang=\"en\"><head><meta charset=\"utf-8\">"
           "<meta name=\"viewport\" content=\"width=device-width\"><title>%1</title><style>"
           ":root{color-scheme:light dark}body{font:15px/1.5 Inter,system-ui,sans-serif;"
           "margin:32px auto;max-width:860px;padding:0 24px}table{border-collapse:collapse;"
           "width:100%}th,td{text-align:left;padding:8px 12px 8px 0;border-bottom:1px solid "
           "#8884}th{font-weight:600}</style></head><body><h1>%1</h1>%2</body></html>"_s.arg(
               title.toHtmlEscaped(), body);
}

QString table(const QStringList &head, const QList<Row> &rows) {
    QString html = u"<table><tr>"_s;
    for (const QString &name : head) {
        html += u"<th>%1</th>"_s.arg(name);
    }
    for (const Row &row : rows) {
        html += u"</tr><tr>"_s;
        for (qsizetype column = 0; column < head.size(); ++column) {
            html += u"<td>%1</td>"_s.arg(row.text(column).toHtmlEscaped());
        }
    }
    return html + u"</tr></table>"_s;
}

Reply projectPage(Services &services, const Call &call) {
    const QString slug = call.segment(2);
    const QString label = services.workspace.projectLabel(call.account, slug);
    const auto tasks = services.database.run([&](Sql &sql) {
        return sql.rows(u"SELECT title, agent, state, due FROM tasks WHERE account = ?"
                        u" AND slug = ? AND closed IS NULL ORDER BY due, id"_s,
                        {call.account, slug});
    });
    const QString body = u"<p>%1 open tasks</p>"_s.arg(tasks.size()) +
                         table({u"Task"_s, u"Agent"_s, u"State"_s, u"Due"_s}, tasks);
    return Reply::html(page(label, body));
}

Reply teamPage(Services &services, const Call &call) {
    const QString slug = call.segment(1);
    const QString label = services.workspace.projectLabel(call.account, slug);
    const auto agents = services.database.run([&](Sql &sql) {
        return sql.rows(u"SELECT a.name, a.role, a.status FROM members m JOIN agents a"
                        u" ON a.id = m.agent WHERE m.account = ? AND m.slug = ?"
                        u" AND m.kind = 'agent' ORDER BY m.position"_s,
                        {call.account, slug});
    });
    return Reply::html(
        page(u"The team of "_s + label, table({u"Agent"_s, u"Role"_s, u"Status"_s}, agents)));
}

Reply agentsPage(Services &services, const Call &call) {
    const auto agents = services.database.run([&](Sql &sql) {
        return sql.rows(u"SELECT name, role, status FROM agents WHERE account = ?"
                        u" AND kind = 'agent' ORDER BY position"_s,
                        {call.account});
    });
    return Reply::html(page(u"Agents"_s, table({u"Agent"_s, u"Role"_s, u"Status"_s}, agents)));
}

} // namespace

void addSurfaceRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.get("/(project|dashboard|p)/([A-Za-z0-9-]+)", Access::SignedIn,
               [&services](const Call &call) { return projectPage(services, call); });
    router.get("/team/([A-Za-z0-9-]+)", Access::SignedIn,
               [&services](const Call &call) { return teamPage(services, call); });
    router.get("/agent-profile", Access::SignedIn,
               [&services](const Call &call) { return agentsPage(services, call); });
}

} // namespace kiv::sandbox
