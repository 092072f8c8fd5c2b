// The weeks, the spend, the cash, the goals and the load.

#include "Database.h"
#include "Seed.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

struct WeekSeed {
    const char16_t *slug;
    int back; ///< 0 is the week of the workspace's day
    int revenue;
    int releases;
    int replyMinutes;
};

constexpr std::array weeks{
    WeekSeed{u"night-ferry", 0, 142'300, 8, 118},  WeekSeed{u"night-ferry", 1, 131'200, 6, 110},
    WeekSeed{u"paper-lantern", 0, 61'400, 3, 134}, WeekSeed{u"paper-lantern", 1, 58'900, 3, 125},
    WeekSeed{u"glasshouse", 0, 88'900, 5, 171},    WeekSeed{u"glasshouse", 1, 86'400, 3, 160},
    WeekSeed{u"orchard", 0, 97'100, 4, 205},       WeekSeed{u"orchard", 1, 91'600, 4, 190},
    WeekSeed{u"blue-kettle", 0, 28'500, 3, 96},    WeekSeed{u"blue-kettle", 1, 25'700, 2, 90},
};

struct ProgressSeed {
    const char16_t *slug;
    int done;
    int target;
    const char16_t *note;
};

constexpr std::array progress{
    ProgressSeed{u"night-ferry", 82, 70, u"Guided sign-up is live, load test is next"},
    ProgressSeed{u"paper-lantern", 64, 60, u"Copy approved, photo set still open"},
    ProgressSeed{u"glasshouse", 41, 65, u"Data agent away until Tuesday"},
    ProgressSeed{u"orchard", 55, 72, u"Tax field missing on two invoices"},
    ProgressSeed{u"blue-kettle", 91, 85, u"All reply macros reviewed"},
};

struct SpendSeed {
    const char16_t *slug;
    const char16_t *line;
    int position;
    int plan;
    int actual;
};

constexpr std::array spend{
    SpendSeed{u"night-ferry", u"Agent time", 1, 9'000, 8'160},
    SpendSeed{u"paper-lantern", u"Agent time", 1, 4'500, 3'900},
    SpendSeed{u"glasshouse", u"Agent time", 1, 6'000, 5'200},
    SpendSeed{u"orchard", u"Agent time", 1, 6'500, 5'800},
    SpendSeed{u"blue-kettle", u"Agent time", 1, 2'000, 1'800},
    SpendSeed{u"glasshouse", u"Hosting", 2, 11'000, 12'400},
    SpendSeed{u"orchard", u"Hosting", 2, 4'500, 4'900},
    SpendSeed{u"paper-lantern", u"Contract design", 3, 13'500, 11'250},
    SpendSeed{u"glasshouse", u"Data licences", 4, 5'000, 4'980},
    SpendSeed{u"orchard", u"Data licences", 4, 3'000, 2'960},
    SpendSeed{u"blue-kettle", u"Support desk", 5, 5'000, 5'240},
    SpendSeed{u"night-ferry", u"Other", 6, 600, 735},
    SpendSeed{u"paper-lantern", u"Other", 6, 300, 340},
    SpendSeed{u"glasshouse", u"Other", 6, 200, 210},
    SpendSeed{u"orchard", u"Other", 6, 300, 350},
    SpendSeed{u"blue-kettle", u"Other", 6, 100, 130},
};

struct CashSeed {
    const char16_t *month;
    int in; ///< thousands of euros
    int out;
};

constexpr std::array cash{
    CashSeed{u"Jul", 92, 78},  CashSeed{u"Aug", 84, 96},  CashSeed{u"Sep", 71, 105},
    CashSeed{u"Oct", 118, 88}, CashSeed{u"Nov", 126, 91}, CashSeed{u"Dec", 139, 97},
};

struct GoalSeed {
    const char16_t *goal;
    const char16_t *owner;
    const char16_t *result;
    int value;
};

constexpr const char16_t *oneDay = u"New customers get value in one day";
constexpr const char16_t *noManual = u"Invoicing runs without manual work";
constexpr const char16_t *personal = u"Support answers feel personal";

constexpr std::array goals{
    GoalSeed{oneDay, u"Product lead", u"Set-up finished within 24 h", 78},
    GoalSeed{oneDay, u"Product lead", u"Guided sign-up live in three languages", 67},
    GoalSeed{oneDay, u"Product lead", u"First report opened by day two", 64},
    GoalSeed{noManual, u"Finance lead", u"Invoices without review", 46},
    GoalSeed{noManual, u"Finance lead", u"Open disputes under 20", 35},
    GoalSeed{personal, u"Support lead", u"First reply under two hours", 88},
    GoalSeed{personal, u"Support lead", u"Satisfaction at 4.6 or more", 94},
    GoalSeed{personal, u"Support lead", u"Macros reviewed", 91},
};

struct LoadSeed {
    const char16_t *person;
    const char16_t *place;
    int planned; ///< tenths of an hour
};

constexpr int available = 400;

constexpr std::array loads{
    LoadSeed{u"Data analyst", u"Glasshouse", 472},
    LoadSeed{u"Backend engineer", u"Orchard, Night Ferry", 424},
    LoadSeed{u"Designer", u"Paper Lantern", 388},
    LoadSeed{u"Product lead", u"Night Ferry", 364},
    LoadSeed{u"Support lead", u"Blue Kettle", 296},
    LoadSeed{u"QA analyst", u"All projects", 208},
};

struct HighlightSeed {
    const char16_t *slug;
    const char16_t *text;
};

constexpr std::array highlights{
    HighlightSeed{u"night-ferry", u"Night Ferry shipped the guided sign-up two days early."},
    HighlightSeed{u"orchard", u"Orchard has two invoices blocked by a missing tax field."},
    HighlightSeed{u"glasshouse", u"Glasshouse runs at 118% load until the data agent is back."},
    HighlightSeed{u"paper-lantern", u"Paper Lantern keeps its launch date, Thursday 3 December."},
};

/// The two weeks that are written down, and six before them in which every project was smaller.
void seedWeeks(Sql &sql, const QString &account, Variation &vary) {
    constexpr int weeksKept = 8;
    const auto add = [&](const WeekSeed &week, int back, int revenue) {
        sql.exec(u"INSERT INTO weekly (account, slug, week, revenue, releases, reply_minutes)"
                 u" VALUES (?, ?, ?, ?, ?, ?)"_s,
                 {account, text(week.slug), back, vary(revenue), week.releases,
                  vary(week.replyMinutes)});
    };
    for (const WeekSeed &week : weeks) {
        add(week, week.back, week.revenue);
        for (int back = 2; week.back == 1 && back < weeksKept; ++back)
            add(week, back, week.revenue * (100 - 3 * (back - 1)) / 100);
    }
}

} // namespace

void seedFigures(Sql &sql, const QString &account, Variation &vary) {
    seedWeeks(sql, account, vary);
    for (const ProgressSeed &project : progress)
        sql.exec(
            u"INSERT INTO progress (account, slug, done, target, note)"
            u" VALUES (?, ?, ?, ?, ?)"_s,
            {account, text(project.slug), vary(project.done), project.target, text(project.note)});
    for (const SpendSeed &line : spend)
        sql.exec(u"INSERT INTO spend (account, slug, line, position, plan, actual)"
                 u" VALUES (?, ?, ?, ?, ?, ?)"_s,
                 {account, text(line.slug), text(line.line), line.position, line.plan,
                  vary(line.actual)});
    int position = 0;
    for (const CashSeed &month : cash)
        sql.exec(u"INSERT INTO cash (account, position, month, money_in, money_out)"
                 u" VALUES (?, ?, ?, ?, ?)"_s,
                 {account, ++position, text(month.month), vary(month.in), vary(month.out)});
    for (const GoalSeed &goal : goals)
        sql.exec(u"INSERT INTO key_results (account, position, goal, owner, name, value, target)"
                 u" VALUES (?, ?, ?, ?, ?, ?, 100)"_s,
                 {account, ++position, text(goal.goal), text(goal.owner), text(goal.result),
                  vary(goal.value)});
    for (const LoadSeed &load : loads)
        sql.exec(u"INSERT INTO capacity (account, position, person, place, planned, available)"
                 u" VALUES (?, ?, ?, ?, ?, ?)"_s,
                 {account, ++position, text(load.person), text(load.place), vary(load.planned),
                  available});
    for (const HighlightSeed &highlight : highlights)
        sql.exec(u"INSERT INTO highlights (account, slug, position, text) VALUES (?, ?, ?, ?)"_s,
                 {account, text(highlight.slug), ++position, text(highlight.text)});
}

} // namespace kiv::sandbox
