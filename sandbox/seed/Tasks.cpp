// The task lists. Every project gets a few tasks that people talk about and many ordinary ones.

#include "Database.h"
#include "Seed.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// How a project's tasks stand on the workspace's day.
struct Load {
    const char16_t *slug;
    std::array<const char16_t *, 3> agents;
    std::array<const char16_t *, 6> objects;
    int open;        ///< without the named ones
    int opened;      ///< of the open ones, in the past week
    int closed;      ///< in the past week
    int overdue;     ///< of the open ones
    int longOverdue; ///< of the overdue ones, already a week ago
};

constexpr std::array loads{
    Load{u"night-ferry",
         {u"Scout", u"Loom", u"Anvil"},
         {u"sign-up copy", u"welcome mail", u"empty states", u"API contract", u"survey results",
          u"error pages"},
         36,
         10,
         13,
         1,
         0},
    Load{u"paper-lantern",
         {u"Quill", u"Prism", u"Quill"},
         {u"launch page", u"photo set", u"press notes", u"price list", u"newsletter", u"captions"},
         20,
         6,
         8,
         1,
         0},
    Load{u"glasshouse",
         {u"Abacus", u"Girder", u"Lens"},
         {u"load figures", u"backup drill", u"hosting contract", u"data export", u"alert rules",
          u"quality report"},
         26,
         5,
         5,
         3,
         2},
    Load{u"orchard",
         {u"Ledger", u"Sieve", u"Tally"},
         {u"tax wording", u"invoice template", u"payment fees", u"dispute list", u"audit notes",
          u"credit notes"},
         29,
         6,
         7,
         3,
         2},
    Load{u"blue-kettle",
         {u"Beacon", u"Echo", u"Beacon"},
         {u"reply macros", u"help articles", u"tone guide", u"opening hours", u"call notes",
          u"refund steps"},
         17,
         5,
         9,
         1,
         0},
};

constexpr std::array<const char16_t *, 8> verbs{u"Review",  u"Draft",   u"Check",     u"Update",
                                                u"Publish", u"Measure", u"Translate", u"Simplify"};

/// Tasks that the brief and the list of blocks are made of. Days count from the workspace's day.
struct Named {
    const char16_t *slug;
    const char16_t *agent;
    const char16_t *title;
    const char16_t *state;
    int due;
};

constexpr std::array named{
    Named{u"night-ferry", u"Anvil", u"Guided sign-up, last two screens", u"doing", 0},
    Named{u"night-ferry", u"Anvil", u"Book the load test", u"todo", 0},
    Named{u"paper-lantern", u"Prism", u"Photo set for the launch page", u"doing", 0},
    Named{u"blue-kettle", u"Beacon", u"Help articles, second draft", u"doing", 0},
    Named{u"orchard", u"Рассвет", u"Доступ к выгрузке", u"doing", 0},
    Named{u"orchard", u"", u"Approve the tax wording", u"todo", 0},
    Named{u"glasshouse", u"", u"Choose a hosting option", u"todo", 0},
    Named{u"orchard", u"Ledger", u"Send the invoices without a tax field", u"blocked", 1},
    Named{u"orchard", u"Tally", u"Confirm the new tax code", u"blocked", 2},
};

class TaskWriter {
public:
    TaskWriter(Sql &sql, const QString &account, QDate today)
        : m_sql(sql), m_account(account), m_today(today) {}

    /// Days count from today; `closed` only for finished tasks.
    void add(const char16_t *slug, const char16_t *agent, const QString &title,
             const QString &state, int created, int due, std::optional<int> closed = {}) {
        m_sql.exec(u"INSERT INTO tasks (account, slug, agent, title, state, created, due, closed)"
                   u" VALUES (?, ?, ?, ?, ?, ?, ?, ?)"_s,
                   {m_account, text(slug), text(agent), title, state, day(created), day(due),
                    closed ? QVariant(day(*closed)) : QVariant()});
    }

private:
    QString day(int offset) const { return m_today.addDays(offset).toString(Qt::ISODate); }

    Sql &m_sql;
    const QString &m_account;
    QDate m_today;
};

QString titleOf(const Load &load, int n) {
    const auto verb = verbs[static_cast<size_t>(n) % verbs.size()];
    const auto object = load.objects[static_cast<size_t>(n / 8) % load.objects.size()];
    return u"%1 the %2"_s.arg(QStringView(verb), QStringView(object));
}

void addOrdinary(TaskWriter &writer, const Load &load, Variation &vary) {
    const auto agent = [&load](int n) { return load.agents[static_cast<size_t>(n) % 3]; };
    for (int n = 0; n < load.open; ++n) {
        const bool young = n >= load.open - load.opened;
        const int created = young ? -1 - vary.below(6) : -8 - vary.below(40);
        int due = 3 + vary.below(30);
        if (n < load.overdue)
            due = n < load.longOverdue ? -9 : -2;
        writer.add(load.slug, agent(n), titleOf(load, n), n % 4 == 1 ? u"doing"_s : u"todo"_s,
                   created, due);
    }
    // Two of Orchard's closed tasks were late: they count as overdue a week ago only.
    const bool late = QStringView(load.slug) == u"orchard";
    for (int n = 0; n < load.closed; ++n) {
        const int due = late && n < 2 ? -10 : 1;
        writer.add(load.slug, agent(n), titleOf(load, load.open + n), u"done"_s,
                   -12 - vary.below(20), due, -1 - vary.below(6));
    }
}

} // namespace

void seedTasks(Sql &sql, const QString &account, QDate today, Variation &vary) {
    TaskWriter writer(sql, account, today);
    for (const Load &load : loads)
        addOrdinary(writer, load, vary);
    for (const Named &task : named) {
        const QString title = text(task.title);
        writer.add(task.slug, task.agent, title, text(task.state), -10, task.due);
    }
    writer.add(u"night-ferry", u"Scout", u"Close the price survey"_s, u"done"_s, -20, 0, 0);
    writer.add(u"blue-kettle", u"Echo", u"Review the reply macros"_s, u"done"_s, -20, 0, 0);
}

} // namespace kiv::sandbox
