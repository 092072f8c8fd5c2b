// The same figures in the forms that a chart block can take.

#include "Asked.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

QJsonObject point(const QString &label, qint64 value) {
    return {{u"label"_s, label}, {u"value"_s, value}, {u"display"_s, euros(value)}};
}

} // namespace

std::optional<Answer> rankedRevenue(const Asked &asked) {
    const auto rows =
        asked.rows(u"slug, revenue"_s, u"weekly"_s, u"AND week = 0 ORDER BY revenue DESC"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    for (const Row &row : rows)
        points.append(point(asked.projectLabel(row.text(0)), row.whole(1)));
    return withBlock(
        asked
            .say(u"**%1** brought in the most this week, %2."_s,
                 u"Больше всех на этой неделе принёс **%1**, %2."_s)
            .arg(asked.projectLabel(rows.constFirst().text(0)), euros(rows.constFirst().whole(1))),
        {{u"kind"_s, u"rank"_s},
         {u"title"_s, u"Revenue this week, by project"_s},
         {u"points"_s, points}},
        {}, u"chart"_s);
}

std::optional<Answer> revenueTrend(const Asked &asked) {
    const auto rows =
        asked.rows(u"week, SUM(revenue)"_s, u"weekly"_s, u"GROUP BY week ORDER BY week DESC"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    for (const Row &row : rows) {
        const int week = asked.asOf().addDays(-7 * row.whole(0)).weekNumber();
        points.append(point(u"W%1"_s.arg(week), row.whole(1)));
    }
    const QJsonObject series{{u"name"_s, u"Revenue"_s}, {u"points"_s, points}};
    return withBlock(asked
                         .say(u"Revenue of %1 went from %2 to %3 in %4 weeks."_s,
                              u"Выручка (%1) выросла с %2 до %3, недель: %4."_s)
                         .arg(asked.subject(), euros(rows.constFirst().whole(1)),
                              euros(rows.constLast().whole(1)))
                         .arg(rows.size()),
                     {{u"kind"_s, u"area"_s},
                      {u"title"_s, u"Revenue by week"_s},
                      {u"series"_s, QJsonArray{series}}},
                     {}, u"chart"_s);
}

std::optional<Answer> spendByProject(const Asked &asked) {
    const auto rows =
        asked.rows(u"line, slug, actual"_s, u"spend"_s, u"ORDER BY position, rowid"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QStringList order;
    QMap<QString, QJsonArray> lines;
    qint64 total = 0;
    for (const Row &row : rows) {
        if (!lines.contains(row.text(0)))
            order.append(row.text(0));
        lines[row.text(0)].append(point(asked.projectLabel(row.text(1)), row.whole(2)));
        total += row.whole(2);
    }
    QJsonArray series;
    for (const QString &line : order)
        series.append(QJsonObject{{u"name"_s, line}, {u"points"_s, lines.value(line)}});
    return withBlock(asked
                         .say(u"%1 in all, a layer for every line of the budget."_s,
                              u"Всего %1, по слою на каждую статью бюджета."_s)
                         .arg(euros(total)),
                     {{u"kind"_s, u"stacked"_s},
                      {u"title"_s, u"Spend by project"_s},
                      {u"unit"_s, u"€"_s},
                      {u"series"_s, series}});
}

std::optional<Answer> highlightCards(const Asked &asked) {
    const auto rows = asked.rows(u"text, slug"_s, u"highlights"_s, u"ORDER BY position"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    for (const Row &row : rows)
        points.append(
            QJsonObject{{u"label"_s, row.text(0)}, {u"meta"_s, asked.projectLabel(row.text(1))}});
    return withBlock(
        asked.say(u"What stood out this week:"_s, u"Что запомнилось за неделю:"_s),
        {{u"kind"_s, u"cards"_s}, {u"title"_s, u"Highlights"_s}, {u"points"_s, points}});
}

/// Key figures as a bare list of texts, the shortest form there is.
std::optional<Answer> headline(const Asked &asked) {
    const auto week = asked.rows(u"SUM(revenue), SUM(releases)"_s, u"weekly"_s,
                                 u"AND week = 0 HAVING COUNT(*) > 0"_s);
    if (week.isEmpty())
        return std::nullopt;
    const qint64 open = asked.tasks(u"COUNT(*)"_s, u"AND closed IS NULL"_s).constFirst().whole(0);
    const Row &row = week.constFirst();
    const QString revenue = asked.say(u"Revenue: %1"_s, u"Выручка: %1"_s).arg(euros(row.whole(0)));
    const QString releases = asked.say(u"Releases — %1"_s, u"Релизы — %1"_s).arg(row.whole(1));
    const QString tasks = asked.say(u"Open tasks: %1"_s, u"Открытые задачи: %1"_s).arg(open);
    return Answer{
        asked.say(u"The week of %1 at a glance:"_s, u"Неделя коротко, %1:"_s).arg(asked.subject()) +
        u"\n\n```kpi\n[\"%1\", \"%2\", \"%3\"]\n```"_s.arg(revenue, releases, tasks)};
}

} // namespace kiv::sandbox
