// The tabs of a project's page.

#include "Database.h"
#include "Pages.h"
#include "answers/Asked.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

void showWork(Sql &sql, const ProjectKey &project, HtmlPage &page) {
    const auto tasks = openTasks(sql, project);
    page.line(tasks.size() == 1 ? u"1 open task"_s : u"%1 open tasks"_s.arg(tasks.size()));
    page.table(taskColumns, tasks);
    QList<QStringList> closed;
    for (const Row &row : sql.rows(u"SELECT title, agent, closed FROM tasks WHERE account = ?"
                                   u" AND slug = ? AND closed IS NOT NULL"
                                   u" ORDER BY closed DESC, id DESC LIMIT 10"_s,
                                   {project.account, project.slug}))
        closed.append({row.text(0), row.text(1), row.text(2)});
    page.section(u"Done lately"_s).table({{u"Task"_s}, {u"Agent"_s}, {u"Closed"_s, true}}, closed);
}

void showGoals(Sql &sql, const ProjectKey &project, HtmlPage &page) {
    QList<HtmlPage::Figure> figures;
    QString note;
    if (const auto row = sql.row(u"SELECT done, target, note FROM progress WHERE account = ?"
                                 u" AND slug = ?"_s,
                                 {project.account, project.slug})) {
        figures = {{u"Done"_s, u"%1%"_s.arg(row->whole(0))},
                   {u"Planned by now"_s, u"%1%"_s.arg(row->whole(1))}};
        note = row->text(2);
    }
    page.line(note.isEmpty() ? u"No goal is set yet."_s : note).figures(figures);
    QList<QStringList> results;
    for (const Row &row :
         sql.rows(u"SELECT name, goal, owner, value, target FROM key_results WHERE account = ?"
                  u" ORDER BY position"_s,
                  {project.account}))
        results.append(
            {row.text(0), row.text(1), row.text(2), u"%1 of %2"_s.arg(row.text(3), row.text(4))});
    page.section(u"Goals of all projects"_s)
        .table({{u"Key result"_s}, {u"Goal"_s}, {u"Owner"_s}, {u"Reached"_s, true}}, results);
}

void showMetrics(Sql &sql, const ProjectKey &project, HtmlPage &page) {
    page.figures(weekFigures(sql, project));
    QList<QStringList> weeks;
    for (const Row &row :
         sql.rows(u"SELECT week, revenue, releases, reply_minutes FROM weekly WHERE account = ?"
                  u" AND slug = ? ORDER BY week"_s,
                  {project.account, project.slug})) {
        const qint64 back = row.whole(0);
        weeks.append({back == 0   ? u"This week"_s
                      : back == 1 ? u"Last week"_s
                                  : u"%1 weeks ago"_s.arg(back),
                      euros(row.whole(1)), row.text(2), hoursMinutes(row.whole(3))});
    }
    page.section(u"Week by week"_s)
        .table({{u"Week"_s},
                {u"Revenue"_s, true},
                {u"Releases"_s, true},
                {u"Median first reply"_s, true}},
               weeks);
}

void showFinance(Sql &sql, const ProjectKey &project, HtmlPage &page) {
    QList<QStringList> lines;
    qint64 plan = 0;
    qint64 actual = 0;
    for (const Row &row : sql.rows(u"SELECT line, plan, actual FROM spend WHERE account = ?"
                                   u" AND slug = ? ORDER BY position"_s,
                                   {project.account, project.slug})) {
        plan += row.whole(1);
        actual += row.whole(2);
        lines.append({row.text(0), euros(row.whole(1)), euros(row.whole(2)),
                      percentChange(row.number(2), row.number(1))});
    }
    if (!lines.isEmpty()) {
        page.figures({{u"Planned"_s, euros(plan)}, {u"Spent"_s, euros(actual)}});
        lines.append({u"Total"_s, euros(plan), euros(actual),
                      percentChange(static_cast<double>(actual), static_cast<double>(plan))});
    }
    page.section(u"This month"_s)
        .table({{u"Line"_s}, {u"Plan"_s, true}, {u"Actual"_s, true}, {u"Against plan"_s, true}},
               lines);
}

void showKnowledge(Sql &sql, const ProjectKey &project, HtmlPage &page) {
    QStringList known;
    for (const Row &row : sql.rows(u"SELECT text FROM highlights WHERE account = ? AND slug = ?"
                                   u" ORDER BY position"_s,
                                   {project.account, project.slug}))
        known.append(row.text(0));
    if (known.isEmpty())
        page.line(u"Nothing has been written down yet."_s);
    else
        page.line(u"What the agents of this project have written down."_s).list(known);
}

void showSettings(Sql &sql, const ProjectKey &project, HtmlPage &page) {
    const auto row = sql.row(u"SELECT brief, status FROM projects WHERE account = ? AND slug = ?"_s,
                             {project.account, project.slug});
    page.table({{u"Setting"_s}, {u"Value"_s}}, {{u"Name"_s, project.label},
                                                {u"Address"_s, u"/project/"_s + project.slug},
                                                {u"Status"_s, row->text(1)},
                                                {u"Brief"_s, row->text(0)}});
}

struct Tab {
    const char16_t *key;
    const char16_t *name;
    void (*show)(Sql &, const ProjectKey &, HtmlPage &);
};

constexpr Tab tabs[] = {
    {u"tasks", u"Work", showWork},
    {u"feed", u"Goals", showGoals},
    {u"metrics", u"Metrics", showMetrics},
    {u"finance", u"Finance", showFinance},
    {u"knowledge", u"Knowledge", showKnowledge},
    {u"settings", u"Settings", showSettings},
};

} // namespace

HtmlPage projectHead(Sql &sql, const ProjectKey &project, const QString &here) {
    HtmlPage page(project.label);
    const auto brief = sql.row(u"SELECT brief FROM projects WHERE account = ? AND slug = ?"_s,
                               {project.account, project.slug});
    if (!brief->text(0).isEmpty())
        page.line(brief->text(0));
    QList<HtmlPage::Link> links{
        {u"Dashboard"_s, u"/dashboard/"_s + project.slug, here == u"dashboard"_s}};
    for (const Tab &tab : tabs) {
        const QString key = QString::fromUtf16(tab.key);
        links.append({QString::fromUtf16(tab.name), u"/project/%1?tab=%2"_s.arg(project.slug, key),
                      here == key});
    }
    links.append({u"Team"_s, u"/team/"_s + project.slug, here == u"team"_s});
    page.links(links);
    return page;
}

HtmlPage projectPage(Sql &sql, const ProjectKey &project, const QString &tab) {
    const auto *known = std::find_if(std::begin(tabs), std::end(tabs), [&](const Tab &candidate) {
        return tab == QString::fromUtf16(candidate.key);
    });
    const Tab &shown = known == std::end(tabs) ? tabs[0] : *known;
    HtmlPage page = projectHead(sql, project, QString::fromUtf16(shown.key));
    shown.show(sql, project, page);
    return page;
}

} // namespace kiv::sandbox
