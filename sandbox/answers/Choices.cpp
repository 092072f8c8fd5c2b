// Options side by side.

#include "Asked.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

std::optional<Answer> hostingOptions(const Asked &asked) {
    const QString slug = asked.projectWith(u"hosting"_s);
    if (slug.isEmpty())
        return std::nullopt;
    const auto options =
        asked.sql().rows(u"SELECT name, price, uptime, latency, backups FROM hosting"
                         u" WHERE account = ? AND slug = ? ORDER BY position"_s,
                         {asked.account(), slug});
    QJsonArray rows;
    const Row *cheapest = &options.constFirst();
    const Row *fastest = &options.constFirst();
    for (const Row &option : options) {
        rows.append(strings({option.text(0), euros(option.whole(1)),
                             QString::number(option.number(2), 'f', 2) + u'%',
                             u"%1 ms"_s.arg(option.whole(3)), option.text(4)}));
        cheapest = option.whole(1) < cheapest->whole(1) ? &option : cheapest;
        fastest = option.whole(3) < fastest->whole(3) ? &option : fastest;
    }
    const QString before =
        asked
            .say(u"%1 options at the current load. **%2** is the cheapest at %3, **%4** the "
                 "fastest at %5 ms."_s,
                 u"Вариантов при текущей нагрузке: %1. Дешевле всех **%2** (%3), быстрее всех "
                 "**%4** (%5 мс)."_s)
            .arg(options.size())
            .arg(cheapest->text(0), euros(cheapest->whole(1)), fastest->text(0))
            .arg(fastest->whole(3));
    return withBlock(before,
                     {{u"kind"_s, u"table"_s},
                      {u"title"_s, u"Hosting options for "_s + asked.projectLabel(slug)},
                      {u"columns"_s, strings({u"Option"_s, u"Price per month"_s, u"Uptime"_s,
                                              u"Latency p95"_s, u"Backups"_s})},
                      {u"rows"_s, rows}});
}

std::optional<Answer> decision(const Asked &asked) {
    const auto questions =
        asked.rows(u"question, option_a, option_b, SUM(a), SUM(b)"_s, u"criteria"_s,
                   u"GROUP BY question, option_a, option_b ORDER BY MIN(position)"_s);
    if (questions.isEmpty())
        return std::nullopt;
    const bool voice = asked.question().text.contains(u"voice"_s, Qt::CaseInsensitive);
    const Row *chosen = &questions.constFirst();
    for (const Row &row : questions)
        chosen = voice && row.text(0).contains(u"voice"_s) ? &row : chosen;
    QJsonArray rows;
    for (const Row &row : asked.rows(u"name, a, b"_s, u"criteria"_s,
                                     u"AND question = ? ORDER BY position"_s, {chosen->text(0)}))
        rows.append(QJsonArray{row.text(0), row.whole(1), row.whole(2)});
    const bool even = chosen->whole(3) == chosen->whole(4);
    const QString winner = chosen->text(chosen->whole(3) > chosen->whole(4) ? 1 : 2);
    const QString before =
        even ? asked.say(u"Both options come to the same total."_s, u"Варианты равны по сумме."_s)
             : asked.say(u"**%1** comes out ahead, %2 to %3."_s, u"Впереди **%1**, %2 против %3."_s)
                   .arg(winner)
                   .arg(std::max(chosen->whole(3), chosen->whole(4)))
                   .arg(std::min(chosen->whole(3), chosen->whole(4)));
    return withBlock(before,
                     {{u"kind"_s, u"compare"_s},
                      {u"title"_s, chosen->text(0)},
                      {u"columns"_s, strings({u"Criterion"_s, chosen->text(1), chosen->text(2)})},
                      {u"rows"_s, rows}});
}

std::optional<Answer> trialFunnel(const Asked &asked) {
    const QString slug = asked.projectWith(u"stages"_s);
    if (slug.isEmpty())
        return std::nullopt;
    const auto stages = asked.sql().rows(u"SELECT name, count FROM stages"
                                         u" WHERE account = ? AND slug = ? ORDER BY position"_s,
                                         {asked.account(), slug});
    QJsonArray points;
    for (const Row &stage : stages)
        points.append(QJsonObject{{u"label"_s, stage.text(0)},
                                  {u"value"_s, stage.whole(1)},
                                  {u"display"_s, grouped(stage.whole(1))}});
    const double through = stages.constLast().number(1) / stages.constFirst().number(1) * 100;
    return withBlock(
        asked
            .say(u"Of %1 visitors %2 end on a paid plan, %3%."_s,
                 u"Из %1 посетителей платят %2, это %3%."_s)
            .arg(grouped(stages.constFirst().whole(1)), grouped(stages.constLast().whole(1)))
            .arg(through, 0, 'f', 1),
        {{u"kind"_s, u"funnel"_s},
         {u"title"_s, u"Trial to paid, "_s + asked.projectLabel(slug)},
         {u"points"_s, points}},
        {}, u"chart"_s);
}

} // namespace kiv::sandbox
