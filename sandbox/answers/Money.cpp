// What things cost and bring.

#include "Asked.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// Spend lines within the scope, as they are booked.
QList<Row> spendLines(const Asked &asked, const QString &order) {
    return asked.rows(u"line, SUM(plan), SUM(actual), MIN(position), COUNT(DISTINCT slug)"_s,
                      u"spend"_s, u"GROUP BY line ORDER BY "_s + order);
}

} // namespace

std::optional<Answer> costs(const Asked &asked) {
    const auto rows = spendLines(asked, u"3 DESC"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    qint64 total = 0;
    for (const Row &row : rows) {
        const qint64 projects = row.whole(4);
        points.append(QJsonObject{
            {u"label"_s, row.text(0)},
            {u"value"_s, row.whole(2)},
            {u"display"_s, euros(row.whole(2))},
            {u"hint"_s, projects == 1 ? u"1 project"_s : u"%1 projects"_s.arg(projects)}});
        total += row.whole(2);
    }
    const Row &first = rows.constFirst();
    const int share =
        qRound(first.number(2) / static_cast<double>(std::max<qint64>(1, total)) * 100);
    const QString month = asked.asOf().toString(u"MMMM"_s);
    return withBlock(asked
                         .say(u"%1 is booked for %2 so far; **%3** takes %4% of it."_s,
                              u"Учтено %1 (%2); **%3** — это %4%."_s)
                         .arg(euros(total), asked.subject(), first.text(0))
                         .arg(share),
                     {{u"kind"_s, u"hbar"_s},
                      {u"title"_s, u"Where %1 spend goes"_s.arg(month)},
                      {u"unit"_s, u"€"_s},
                      {u"points"_s, points}});
}

std::optional<Answer> budget(const Asked &asked) {
    const auto rows = spendLines(asked, u"4"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray lines;
    QStringList over;
    for (const Row &row : rows) {
        lines.append(strings({row.text(0), euros(row.whole(1)), euros(row.whole(2))}));
        if (row.number(2) > row.number(1) * 1.1)
            over.append(
                u"**%1** (%2)"_s.arg(row.text(0), percentChange(row.number(2), row.number(1))));
    }
    const QString month = asked.asOf().toString(u"MMMM"_s);
    const QString before = over.isEmpty()
                               ? asked.say(u"Every line is within a tenth of its plan."_s,
                                           u"Все статьи в пределах десяти процентов от плана."_s)
                               : asked
                                     .say(u"More than a tenth over plan: %1."_s,
                                          u"Больше чем на десятую выше плана: %1."_s)
                                     .arg(over.join(u", "_s));
    return withBlock(before, {{u"kind"_s, u"table"_s},
                              {u"art"_s, u"budget"_s},
                              {u"title"_s, u"%1 budget, plan against actual"_s.arg(month)},
                              {u"columns"_s, strings({u"Line"_s, u"Plan"_s, u"Actual"_s})},
                              {u"rows"_s, lines}});
}

std::optional<Answer> cashFlow(const Asked &asked) {
    const auto rows = asked.sql().rows(
        u"SELECT month, money_in, money_out FROM cash WHERE account = ? ORDER BY position"_s,
        {asked.account()});
    if (rows.isEmpty())
        return std::nullopt;
    constexpr qint64 opening = 100; // thousands, before the first month of the table
    QJsonArray in;
    QJsonArray out;
    QJsonArray balance;
    qint64 sum = opening;
    qint64 lowest = sum;
    QString lowestMonth;
    for (const Row &row : rows) {
        const auto point = [&row](qint64 value) {
            return QJsonObject{{u"label"_s, row.text(0)}, {u"value"_s, value}};
        };
        sum += row.whole(1) - row.whole(2);
        in.append(point(row.whole(1)));
        out.append(point(row.whole(2)));
        balance.append(point(sum));
        if (sum < lowest || lowestMonth.isEmpty()) {
            lowest = sum;
            lowestMonth = row.text(0);
        }
    }
    const auto series = [](const QString &name, const QJsonArray &points) {
        return QJsonObject{{u"name"_s, name}, {u"points"_s, points}};
    };
    return withBlock(asked
                         .say(u"The balance ends at €%1k; its low was €%2k in %3."_s,
                              u"Остаток в конце — €%1 тыс., минимум €%2 тыс. в %3."_s)
                         .arg(sum)
                         .arg(lowest)
                         .arg(lowestMonth),
                     {{u"kind"_s, u"line"_s},
                      {u"art"_s, u"cashflow"_s},
                      {u"title"_s, u"Cash in and out, thousands of euros"_s},
                      {u"series"_s, QJsonArray{series(u"In"_s, in), series(u"Out"_s, out),
                                               series(u"Balance"_s, balance)}}});
}

std::optional<Answer> unitCost(const Asked &asked) {
    const QString slug = asked.projectWith(u"unit_parts"_s);
    if (slug.isEmpty())
        return std::nullopt;
    const auto rows = asked.sql().rows(u"SELECT name, cents FROM unit_parts"
                                       u" WHERE account = ? AND slug = ? ORDER BY position"_s,
                                       {asked.account(), slug});
    QJsonArray points;
    qint64 total = 0;
    for (const Row &row : rows) {
        points.append(QJsonObject{{u"label"_s, row.text(0)},
                                  {u"value"_s, row.number(1) / 100},
                                  {u"display"_s, cents(row.whole(1))}});
        total += row.whole(1);
    }
    return withBlock(
        asked
            .say(u"One invoice of **%1** costs %2, most of it for %3."_s,
                 u"Один счёт в **%1** стоит %2, больше всего — %3."_s)
            .arg(asked.projectLabel(slug), cents(total), rows.constFirst().text(0).toLower()),
        {{u"kind"_s, u"donut"_s},
         {u"title"_s, u"What one %1 invoice costs"_s.arg(asked.projectLabel(slug))},
         {u"unit"_s, u"€"_s},
         {u"points"_s, points}});
}

} // namespace kiv::sandbox
