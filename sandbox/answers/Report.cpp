// The week in six figures.

#include "Asked.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

struct Week {
    qint64 revenue = 0;
    qint64 releases = 0;
    qint64 replyMinutes = 0; ///< the median of the projects
};

std::optional<Week> weekBack(const Asked &asked, int back) {
    const auto rows = asked.rows(u"revenue, releases, reply_minutes"_s, u"weekly"_s,
                                 u"AND week = ? ORDER BY reply_minutes"_s, {back});
    if (rows.isEmpty())
        return std::nullopt;
    Week week;
    for (const Row &row : rows) {
        week.revenue += row.whole(0);
        week.releases += row.whole(1);
    }
    const qsizetype middle = rows.size() / 2;
    week.replyMinutes = rows.size() % 2
                            ? rows.at(middle).whole(2)
                            : (rows.at(middle - 1).whole(2) + rows.at(middle).whole(2)) / 2;
    return week;
}

qint64 openTasks(const Asked &asked, QDate day) {
    const QString on = day.toString(Qt::ISODate);
    return asked
        .rows(u"COUNT(*)"_s, u"tasks"_s, u"AND created <= ? AND (closed IS NULL OR closed > ?)"_s,
              {on, on})
        .constFirst()
        .whole(0);
}

qint64 overdueTasks(const Asked &asked, QDate day) {
    const QString on = day.toString(Qt::ISODate);
    return asked
        .rows(u"COUNT(*)"_s, u"tasks"_s,
              u"AND created <= ? AND due < ? AND (closed IS NULL OR closed > ?)"_s, {on, on, on})
        .constFirst()
        .whole(0);
}

QJsonObject item(const QString &label, double value, const QString &display, const QString &delta) {
    return {{u"label"_s, label}, {u"value"_s, value}, {u"display"_s, display}, {u"delta"_s, delta}};
}

QString openSpots(const Asked &asked) {
    const auto rows =
        asked.rows(u"slug, note"_s, u"progress"_s, u"AND done < target ORDER BY rowid"_s);
    QStringList spots;
    for (const Row &row : rows)
        spots.append(u"**%1** (%2)"_s.arg(asked.projectLabel(row.text(0)), row.text(1)));
    if (spots.isEmpty())
        return asked.say(u"A good week with nothing behind its target."_s,
                         u"Хорошая неделя, отставаний нет."_s);
    return asked
        .say(u"A good week with %1 open spots: %2."_s,
             u"Хорошая неделя, открытых вопросов: %1. %2."_s)
        .arg(spots.size())
        .arg(spots.join(u", "_s));
}

} // namespace

std::optional<Answer> weeklyReport(const Asked &asked) {
    const auto now = weekBack(asked, 0);
    const auto before = weekBack(asked, 1);
    if (!now || !before)
        return std::nullopt;
    const QDate lastWeek = asked.asOf().addDays(-7);
    const qint64 open = openTasks(asked, asked.asOf());
    const qint64 overdue = overdueTasks(asked, asked.asOf());
    const Row spend = asked.rows(u"SUM(plan), SUM(actual)"_s, u"spend"_s).constFirst();
    const int used = qRound(spend.number(1) / std::max(1.0, spend.number(0)) * 100);

    const QJsonArray items{
        item(u"Recognised revenue"_s, static_cast<double>(now->revenue), euros(now->revenue),
             u"%1 on last week"_s.arg(percentChange(static_cast<double>(now->revenue),
                                                    static_cast<double>(before->revenue)))),
        item(u"Open tasks"_s, static_cast<double>(open), grouped(open),
             signedWhole(open - openTasks(asked, lastWeek))),
        item(u"Overdue tasks"_s, static_cast<double>(overdue), grouped(overdue),
             signedWhole(overdue - overdueTasks(asked, lastWeek))),
        item(u"Spend against plan"_s, used, u"%1%"_s.arg(used),
             u"plan %1"_s.arg(euros(spend.whole(0)))),
        item(u"Releases shipped"_s, static_cast<double>(now->releases), grouped(now->releases),
             signedWhole(now->releases - before->releases)),
        item(u"Median first reply"_s, static_cast<double>(now->replyMinutes),
             hoursMinutes(now->replyMinutes),
             signedWhole(now->replyMinutes - before->replyMinutes) + u" m"_s),
    };
    QJsonArray points;
    QString list;
    for (const Row &row : asked.rows(u"text"_s, u"highlights"_s, u"ORDER BY position"_s)) {
        points.append(QJsonObject{{u"label"_s, row.text(0)}});
        list += u"- "_s + row.text(0) + u'\n';
    }
    const QString title =
        (asked.slug().isEmpty() ? u"Portfolio report, week %1"_s
                                : asked.projectLabel(asked.slug()) + u" report, week %1"_s)
            .arg(asked.asOf().weekNumber());
    const QJsonObject view{
        {u"kind"_s, u"kpi"_s}, {u"title"_s, title}, {u"items"_s, items}, {u"points"_s, points}};
    const QString after =
        list.isEmpty() ? QString()
                       : asked.say(u"Highlights:\n\n%1"_s, u"Главное:\n\n%1"_s).arg(list.trimmed());
    return withBlock(openSpots(asked), view, after);
}

} // namespace kiv::sandbox
