// Options, stages, parts, criteria and the cards of a retrospective.

#include "Database.h"
#include "Seed.h"

#include <array>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

struct HostingSeed {
    const char16_t *name;
    int price;
    double uptime;
    int latency;
    const char16_t *backups;
};

constexpr std::array hosting{
    HostingSeed{u"Shared cluster", 1'240, 99.90, 38, u"Included"},
    HostingSeed{u"Dedicated small", 1'985, 99.95, 24, u"Included"},
    HostingSeed{u"Dedicated large", 3'410, 99.99, 17, u"Included"},
    HostingSeed{u"Edge network", 2'760, 99.97, 11, u"Extra €180"},
    HostingSeed{u"Own rack", 2'120, 99.80, 29, u"Not offered"},
    HostingSeed{u"Резервный кластер", 1'560, 99.90, 41, u"Included"},
};

struct StageSeed {
    const char16_t *name;
    int count;
};

constexpr std::array stages{
    StageSeed{u"Visited the page", 12'480}, StageSeed{u"Started a trial", 5'240},
    StageSeed{u"Finished set-up", 3'310},   StageSeed{u"Invited a colleague", 1'460},
    StageSeed{u"Paid plan", 612},
};

struct PartSeed {
    const char16_t *name;
    int cents;
};

constexpr std::array parts{
    PartSeed{u"People", 76},  PartSeed{u"Manual review", 44}, PartSeed{u"Payment fees", 31},
    PartSeed{u"Hosting", 22}, PartSeed{u"Other", 11},
};

struct CriterionSeed {
    const char16_t *slug;
    const char16_t *question;
    const char16_t *optionA;
    const char16_t *optionB;
    const char16_t *name;
    int a;
    int b;
};

constexpr const char16_t *invoicing = u"Where should Orchard invoicing live?";
constexpr const char16_t *keep = u"Keep it in Orchard";
constexpr const char16_t *move = u"Move to a new service";
constexpr const char16_t *voice = u"Build or buy the voice stack?";

constexpr std::array criteria{
    CriterionSeed{u"orchard", invoicing, keep, move, u"Time to launch", 8, 4},
    CriterionSeed{u"orchard", invoicing, keep, move, u"Running cost", 6, 7},
    CriterionSeed{u"orchard", invoicing, keep, move, u"Team skills", 9, 5},
    CriterionSeed{u"orchard", invoicing, keep, move, u"Customer impact", 7, 8},
    CriterionSeed{u"orchard", invoicing, keep, move, u"Risk", 8, 5},
    CriterionSeed{u"glasshouse", voice, u"Build", u"Buy", u"Time to launch", 3, 9},
    CriterionSeed{u"glasshouse", voice, u"Build", u"Buy", u"Running cost", 8, 5},
    CriterionSeed{u"glasshouse", voice, u"Build", u"Buy", u"Quality", 6, 8},
    CriterionSeed{u"glasshouse", voice, u"Build", u"Buy", u"Control", 9, 4},
};

struct CardSeed {
    const char16_t *column;
    const char16_t *card;
};

constexpr std::array retro{
    CardSeed{u"Went well", u"Sign-up shipped two days early"},
    CardSeed{u"Went well", u"Pairing on the API contract paid off"},
    CardSeed{u"Went well", u"Support saw the release notes first"},
    CardSeed{u"Went well", u"No rollbacks"},
    CardSeed{u"To improve", u"Load test came too late"},
    CardSeed{u"To improve", u"Three reviews waited over a day"},
    CardSeed{u"To improve", u"Design notes were spread over two places"},
    CardSeed{u"Actions", u"Book the load test in week one"},
    CardSeed{u"Actions", u"Second reviewer for every release"},
    CardSeed{u"Actions", u"One page for design notes"},
};

struct PlanSeed {
    const char16_t *agent;
    const char16_t *title;
    const char16_t *state;
};

constexpr std::array plan{
    PlanSeed{u"Scout · Research", u"Interview notes", u"done"},
    PlanSeed{u"Scout · Research", u"Price survey", u"done"},
    PlanSeed{u"Scout · Research", u"Summary", u"doing"},
    PlanSeed{u"Loom · Design", u"Sign-up flow", u"done"},
    PlanSeed{u"Loom · Design", u"Empty states", u"doing"},
    PlanSeed{u"Anvil · Build", u"API contract", u"done"},
    PlanSeed{u"Anvil · Build", u"Guided sign-up", u"doing"},
    PlanSeed{u"Anvil · Build", u"Load test", u"todo"},
    PlanSeed{u"Beacon · Support", u"Help articles", u"doing"},
    PlanSeed{u"Beacon · Support", u"Reply macros", u"todo"},
    PlanSeed{u"Ledger · Finance", u"Plan check", u"done"},
    PlanSeed{u"Ledger · Finance", u"Tax fields", u"blocked"},
};

} // namespace

void seedChoices(Sql &sql, const QString &account, Variation &vary) {
    int position = 0;
    for (const HostingSeed &option : hosting)
        sql.exec(u"INSERT INTO hosting (account, slug, position, name, price, uptime, latency,"
                 u" backups) VALUES (?, 'glasshouse', ?, ?, ?, ?, ?, ?)"_s,
                 {account, ++position, text(option.name), vary(option.price), option.uptime,
                  vary(option.latency), text(option.backups)});
    for (const StageSeed &stage : stages)
        sql.exec(u"INSERT INTO stages (account, slug, position, name, count)"
                 u" VALUES (?, 'night-ferry', ?, ?, ?)"_s,
                 {account, ++position, text(stage.name), vary(stage.count)});
    for (const PartSeed &part : parts)
        sql.exec(u"INSERT INTO unit_parts (account, slug, position, name, cents)"
                 u" VALUES (?, 'orchard', ?, ?, ?)"_s,
                 {account, ++position, text(part.name), vary(part.cents)});
    for (const CriterionSeed &row : criteria)
        sql.exec(u"INSERT INTO criteria (account, slug, question, option_a, option_b, position,"
                 u" name, a, b) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
                 {account, text(row.slug), text(row.question), text(row.optionA), text(row.optionB),
                  ++position, text(row.name), row.a, row.b});
    for (const CardSeed &card : retro)
        sql.exec(u"INSERT INTO retro (account, slug, position, column_name, card)"
                 u" VALUES (?, 'night-ferry', ?, ?, ?)"_s,
                 {account, ++position, text(card.column), text(card.card)});
    for (const PlanSeed &piece : plan)
        sql.exec(u"INSERT INTO plan (account, slug, position, agent, title, state)"
                 u" VALUES (?, 'night-ferry', ?, ?, ?, ?)"_s,
                 {account, ++position, text(piece.agent), text(piece.title), text(piece.state)});
}

} // namespace kiv::sandbox
