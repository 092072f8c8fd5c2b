// Projects, agents and what happened lately.

#include "Database.h"
#include "Seed.h"

#include <QUuid>

#include <array>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

struct ProjectSeed {
    const char16_t *slug;
    const char16_t *label;
    const char16_t *brief;
};

constexpr std::array projects{
    ProjectSeed{u"night-ferry", u"Night Ferry", u"Guided sign-up for new customers"},
    ProjectSeed{u"paper-lantern", u"Paper Lantern", u"The autumn launch"},
    ProjectSeed{u"glasshouse", u"Glasshouse", u"Hosting and data"},
    ProjectSeed{u"orchard", u"Orchard", u"Invoicing"},
    ProjectSeed{u"blue-kettle", u"Blue Kettle", u"Customer support"},
};

struct AgentSeed {
    const char16_t *slug; ///< empty for one that stands alone
    const char16_t *name;
    const char16_t *role;
    const char16_t *status;
    const char16_t *kind;
};

constexpr std::array agents{
    AgentSeed{u"", u"KIV", u"Orchestrator", u"hidden", u"orchestrator"},
    AgentSeed{u"night-ferry", u"Night Ferry team", u"Team", u"active", u"team"},
    AgentSeed{u"night-ferry", u"Scout", u"Research", u"active", u"agent"},
    AgentSeed{u"night-ferry", u"Loom", u"Design", u"active", u"agent"},
    AgentSeed{u"night-ferry", u"Anvil", u"Build", u"active", u"agent"},
    AgentSeed{u"night-ferry", u"Driftwood", u"Research", u"archived", u"agent"},
    AgentSeed{u"paper-lantern", u"Quill", u"Copy", u"active", u"agent"},
    AgentSeed{u"paper-lantern", u"Prism", u"Pictures", u"active", u"agent"},
    AgentSeed{u"glasshouse", u"Abacus", u"Data", u"active", u"agent"},
    AgentSeed{u"glasshouse", u"Girder", u"Hosting", u"active", u"agent"},
    AgentSeed{u"glasshouse", u"Lens", u"Quality", u"active", u"agent"},
    AgentSeed{u"orchard", u"Ledger", u"Finance", u"active", u"agent"},
    AgentSeed{u"orchard", u"Sieve", u"Invoice checks", u"active", u"agent"},
    AgentSeed{u"orchard", u"Tally", u"Tax", u"active", u"agent"},
    AgentSeed{u"orchard", u"Рассвет", u"Выгрузки", u"active", u"agent"},
    AgentSeed{u"blue-kettle", u"Beacon", u"Support", u"active", u"agent"},
    AgentSeed{u"blue-kettle", u"Echo", u"Reply macros", u"active", u"agent"},
    AgentSeed{u"", u"Compass", u"Planning", u"active", u"agent"},
    AgentSeed{u"", u"Herald", u"News", u"active", u"agent"},
    AgentSeed{u"", u"Anchor", u"Backups", u"stopped", u"agent"},
    AgentSeed{u"", u"Relic", u"Old reports", u"archived", u"agent"},
};

struct EventSeed {
    const char16_t *slug;
    int hoursAgo;
    const char16_t *kind;
    const char16_t *title;
    const char16_t *detail;
};

constexpr std::array events{
    EventSeed{u"night-ferry", 2, u"release", u"Guided sign-up is live",
              u"Anvil shipped it two days early"},
    EventSeed{u"night-ferry", 9, u"task_done", u"Price survey closed", u"Scout"},
    EventSeed{u"night-ferry", 26, u"comment", u"Loom asked for a review", u"Empty states"},
    EventSeed{u"paper-lantern", 5, u"task_done", u"Launch copy approved", u"Quill"},
    EventSeed{u"paper-lantern", 30, u"plan", u"Launch date kept", u"Thursday 3 December"},
    EventSeed{u"glasshouse", 3, u"alert", u"Load at 118%", u"Until the data agent is back"},
    EventSeed{u"glasshouse", 20, u"task_done", u"Backup drill passed", u"Girder"},
    EventSeed{u"orchard", 1, u"alert", u"Two invoices blocked", u"A tax field is missing"},
    EventSeed{u"orchard", 28, u"comment", u"Рассвет просит доступ", u"Выгрузка за октябрь"},
    EventSeed{u"blue-kettle", 7, u"task_done", u"Reply macros reviewed", u"Echo"},
};

} // namespace

void seedRoster(Sql &sql, const QString &account, const QDateTime &now) {
    int position = 0;
    for (const ProjectSeed &project : projects)
        sql.exec(
            u"INSERT INTO projects (account, slug, label, brief, status, position)"
            u" VALUES (?, ?, ?, ?, 'active', ?)"_s,
            {account, text(project.slug), text(project.label), text(project.brief), ++position});
    position = 0;
    for (const AgentSeed &agent : agents) {
        const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
        sql.exec(u"INSERT INTO agents (id, account, name, role, description, status, kind,"
                 u" position) VALUES (?, ?, ?, ?, '', ?, ?, ?)"_s,
                 {id, account, text(agent.name), text(agent.role), text(agent.status),
                  text(agent.kind), ++position});
        if (*agent.slug) {
            const QString kind = text(agent.kind);
            sql.exec(u"INSERT INTO members (account, slug, agent, kind, position)"
                     u" VALUES (?, ?, ?, ?, ?)"_s,
                     {account, text(agent.slug), id, kind, position});
        }
    }
    for (const EventSeed &event : events) {
        const QDateTime at = now.addSecs(-3600 * event.hoursAgo);
        sql.exec(u"INSERT INTO events (account, slug, kind, title, detail, created_at)"
                 u" VALUES (?, ?, ?, ?, ?, ?)"_s,
                 {account, text(event.slug), text(event.kind), text(event.title),
                  text(event.detail), at.toString(Qt::ISODateWithMs)});
    }
}

} // namespace kiv::sandbox
