// The pages beside a project's own: dashboard, team, public view, agents.

#include "Database.h"
#include "Pages.h"
#include "answers/Asked.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

const QList<HtmlPage::Column> agentColumns{{u"Agent"_s}, {u"Role"_s}, {u"Status"_s}};

QList<QStringList> agentsOf(const QList<Row> &rows) {
    QList<QStringList> agents;
    for (const Row &row : rows)
        agents.append({row.text(0), row.text(1), row.text(2)});
    return agents;
}

} // namespace

const QList<HtmlPage::Column> taskColumns{
    {u"Task"_s}, {u"Agent"_s}, {u"State"_s}, {u"Due"_s, true}};

QList<QStringList> openTasks(Sql &sql, const ProjectKey &project) {
    QList<QStringList> tasks;
    for (const Row &row : sql.rows(u"SELECT title, agent, state, due FROM tasks WHERE account = ?"
                                   u" AND slug = ? AND closed IS NULL ORDER BY due, id"_s,
                                   {project.account, project.slug}))
        tasks.append({row.text(0), row.text(1), row.text(2), row.text(3)});
    return tasks;
}

QList<HtmlPage::Figure> weekFigures(Sql &sql, const ProjectKey &project) {
    const auto row = sql.row(u"SELECT revenue, releases, reply_minutes FROM weekly"
                             u" WHERE account = ? AND slug = ? AND week = 0"_s,
                             {project.account, project.slug});
    if (!row)
        return {};
    return {{u"Revenue this week"_s, euros(row->whole(0))},
            {u"Releases this week"_s, row->text(1)},
            {u"Median first reply"_s, hoursMinutes(row->whole(2))}};
}

HtmlPage dashboardPage(Sql &sql, const ProjectKey &project) {
    HtmlPage page = projectHead(sql, project, u"dashboard"_s);
    const auto tasks = openTasks(sql, project);
    page.figures(weekFigures(sql, project) +
                 QList<HtmlPage::Figure>{{u"Open tasks"_s, QString::number(tasks.size())}});
    page.section(u"Due next"_s).table(taskColumns, tasks);
    return page;
}

HtmlPage teamPage(Sql &sql, const ProjectKey &project) {
    HtmlPage page = projectHead(sql, project, u"team"_s);
    page.table(agentColumns,
               agentsOf(sql.rows(u"SELECT a.name, a.role, a.status FROM members m JOIN agents a"
                                 u" ON a.id = m.agent WHERE m.account = ? AND m.slug = ?"
                                 u" AND m.kind = 'agent' ORDER BY m.position"_s,
                                 {project.account, project.slug})));
    return page;
}

HtmlPage publicPage(Sql &sql, const ProjectKey &project) {
    HtmlPage page(project.label);
    const auto row = sql.row(
        u"SELECT p.brief, g.done FROM projects p LEFT JOIN progress g"
        u" ON g.account = p.account AND g.slug = p.slug WHERE p.account = ? AND p.slug = ?"_s,
        {project.account, project.slug});
    if (!row->text(0).isEmpty())
        page.line(row->text(0));
    if (!row->isNull(1))
        page.figures({{u"Done"_s, u"%1%"_s.arg(row->whole(1))}});
    return page;
}

HtmlPage agentsPage(Sql &sql, const QString &account) {
    HtmlPage page(u"Agents"_s);
    page.table(agentColumns, agentsOf(sql.rows(u"SELECT name, role, status FROM agents"
                                               u" WHERE account = ? AND kind = 'agent'"
                                               u" ORDER BY position"_s,
                                               {account})));
    return page;
}

HtmlPage signInPage() {
    HtmlPage page(u"Sign in first"_s);
    page.line(u"This page is for the people of its workspace. Sign in to KIV and open it again."_s);
    return page;
}

} // namespace kiv::sandbox
