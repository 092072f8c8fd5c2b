#pragma once

#include "HtmlPage.h"

namespace kiv::sandbox {

class Sql;

/// One project of one account, as its pages need it.
struct ProjectKey {
    QString account;
    QString slug;
    QString label;
};

/// A tab of a project's page: the tasks when `tab` is none that there is.
HtmlPage projectPage(Sql &sql, const ProjectKey &project, const QString &tab);
HtmlPage dashboardPage(Sql &sql, const ProjectKey &project);
HtmlPage teamPage(Sql &sql, const ProjectKey &project);
/// What a project shows to people who do not work in it.
HtmlPage publicPage(Sql &sql, const ProjectKey &project);
HtmlPage agentsPage(Sql &sql, const QString &account);
/// What takes a page's place for who is not signed in.
HtmlPage signInPage();

// What several pages have in common.
HtmlPage projectHead(Sql &sql, const ProjectKey &project, const QString &here);
QList<QStringList> openTasks(Sql &sql, const ProjectKey &project);
QList<HtmlPage::Figure> weekFigures(Sql &sql, const ProjectKey &project);
extern const QList<HtmlPage::Column> taskColumns;

} // namespace kiv::sandbox
