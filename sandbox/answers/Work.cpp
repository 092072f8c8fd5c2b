// Who does what: standing, plans, tasks and load.

#include "Asked.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

QJsonObject view(const QString &kind, const QString &title, const QJsonArray &points) {
    return {{u"kind"_s, kind}, {u"title"_s, title}, {u"points"_s, points}};
}

QJsonObject statusPoint(const QString &label, const QString &status, const QString &hint) {
    return {{u"label"_s, label}, {u"status"_s, status}, {u"hint"_s, hint}};
}

QString place(const Asked &asked, const Row &task) {
    const QString project = asked.projectLabel(task.text(2));
    return task.text(3).isEmpty() ? project : u"%1 · %2"_s.arg(project, task.text(3));
}

} // namespace

std::optional<Answer> projectStatus(const Asked &asked) {
    const auto rows = asked.rows(u"slug, done, target, note"_s, u"progress"_s, u"ORDER BY rowid"_s);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    QStringList behind;
    for (const Row &row : rows) {
        const QString label = asked.projectLabel(row.text(0));
        points.append(QJsonObject{{u"label"_s, label},
                                  {u"value"_s, row.whole(1)},
                                  {u"target"_s, row.whole(2)},
                                  {u"display"_s, u"%1%"_s.arg(row.whole(1))},
                                  {u"hint"_s, row.text(3)}});
        if (row.whole(1) < row.whole(2))
            behind.append(asked.say(u"**%1** by %2 points"_s, u"**%1** на %2 п. п."_s)
                              .arg(label)
                              .arg(row.whole(2) - row.whole(1)));
    }
    QJsonObject progress =
        view(u"progress"_s, asked.say(u"Progress of %1"_s, u"Ход дел: %1"_s).arg(asked.subject()),
             points);
    progress.insert(u"unit"_s, u"%"_s);
    const QString before = behind.isEmpty()
                               ? asked.say(u"Everything is at or ahead of its target."_s,
                                           u"Всё идёт по плану или с опережением."_s)
                               : asked.say(u"Behind the plan: %1."_s, u"Отстают от плана: %1."_s)
                                     .arg(behind.join(u", "_s));
    return withBlock(before, progress);
}

std::optional<Answer> releasePlan(const Asked &asked) {
    QString rest = u"ORDER BY position"_s;
    QVariantList more;
    if (!asked.agent().isEmpty()) {
        rest.prepend(u"AND agent LIKE ? || ' ·%' "_s);
        more.append(asked.agent());
    }
    const auto rows = asked.rows(u"agent, title, state, slug"_s, u"plan"_s, rest, more);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    int done = 0;
    for (const Row &row : rows) {
        points.append(statusPoint(row.text(1), row.text(2), row.text(0)));
        done += row.text(2) == u"done"_s ? 1 : 0;
    }
    const QString title =
        u"Who is working on the %1 release"_s.arg(asked.projectLabel(rows.constFirst().text(3)));
    const QString before = asked
                               .say(u"%1 of %2 pieces of the plan are done. In order:"_s,
                                    u"Готово %1 из %2 частей плана. По порядку:"_s)
                               .arg(done)
                               .arg(rows.size());
    return withBlock(before, view(u"timeline"_s, title, points));
}

std::optional<Answer> todaysBrief(const Asked &asked) {
    const QString columns = u"title, state, slug, agent"_s;
    const QString today = asked.asOf().toString(Qt::ISODate);
    auto rows = asked.tasks(columns, u"AND state = 'done' ORDER BY closed DESC, id DESC LIMIT 2"_s);
    rows += asked.tasks(columns, u"AND state = 'doing' AND due >= ? ORDER BY due, id LIMIT 4"_s,
                        {today});
    rows += asked.tasks(columns, u"AND state = 'todo' AND due >= ? ORDER BY due, id LIMIT 3"_s,
                        {today});
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    for (const Row &row : rows)
        points.append(statusPoint(row.text(0), row.text(1), place(asked, row)));
    const qint64 overdue = asked.tasks(u"COUNT(*)"_s, u"AND closed IS NULL AND due < ?"_s, {today})
                               .constFirst()
                               .whole(0);
    return withBlock(
        asked
            .say(u"What was finished, what is under way and what comes next, the nearest due "
                 "dates first. %1 more are overdue."_s,
                 u"Что сделано, что в работе и что дальше, сначала самые срочные. "
                 "Просрочено ещё: %1."_s)
            .arg(overdue),
        view(u"checklist"_s, u"Brief for %1"_s.arg(asked.asOf().toString(u"d MMMM"_s)), points));
}

std::optional<Answer> blockedTasks(const Asked &asked) {
    const auto rows = asked.tasks(u"title, state, slug, agent, due"_s,
                                  u"AND state = 'blocked' ORDER BY due, id LIMIT 8"_s);
    if (rows.isEmpty())
        return Answer{asked
                          .say(u"Nothing is blocked for **%1** right now."_s,
                               u"Сейчас ничего не заблокировано: **%1**."_s)
                          .arg(asked.subject())};
    QString list;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const Row &row = rows.at(i);
        list += u"%1. **%2**, %3, "_s.arg(i + 1).arg(row.text(0), place(asked, row)) +
                asked.say(u"due %1\n"_s, u"срок %1\n"_s).arg(row.text(4));
    }
    return Answer{asked
                      .say(rows.size() == 1 ? u"%1 task waits for something:\n\n%2"_s
                                            : u"%1 tasks wait for something:\n\n%2"_s,
                           u"Ждут решения задач: %1\n\n%2"_s)
                      .arg(rows.size())
                      .arg(list.trimmed())};
}

std::optional<Answer> retrospective(const Asked &asked) {
    const QString slug = asked.projectWith(u"retro"_s);
    if (slug.isEmpty())
        return std::nullopt;
    QJsonArray columns;
    for (const Row &column :
         asked.sql().rows(u"SELECT column_name FROM retro WHERE account = ? AND slug = ?"
                          u" GROUP BY column_name ORDER BY MIN(position)"_s,
                          {asked.account(), slug})) {
        QJsonArray cards;
        for (const Row &card :
             asked.sql().rows(u"SELECT card FROM retro WHERE account = ? AND slug = ?"
                              u" AND column_name = ? ORDER BY position"_s,
                              {asked.account(), slug, column.text(0)}))
            cards.append(QJsonObject{{u"label"_s, card.text(0)}});
        columns.append(QJsonObject{{u"name"_s, column.text(0)}, {u"points"_s, cards}});
    }
    const QString label = asked.projectLabel(slug);
    return withBlock(asked
                         .say(u"The last sprint of **%1**, as the team put it:"_s,
                              u"Последний спринт **%1** словами команды:"_s)
                         .arg(label),
                     {{u"kind"_s, u"board"_s},
                      {u"title"_s, u"Retrospective, "_s + label},
                      {u"columns"_s, columns}});
}

std::optional<Answer> goalScores(const Asked &asked) {
    const auto rows = asked.sql().rows(u"SELECT goal, owner, name, value, target FROM key_results"
                                       u" WHERE account = ? ORDER BY position"_s,
                                       {asked.account()});
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    int reached = 0;
    for (const Row &row : rows) {
        points.append(QJsonObject{{u"label"_s, row.text(2)},
                                  {u"value"_s, row.whole(3)},
                                  {u"target"_s, row.whole(4)},
                                  {u"display"_s, u"%1%"_s.arg(row.whole(3))},
                                  {u"hint"_s, u"%1 · %2"_s.arg(row.text(0), row.text(1))}});
        reached += row.whole(3) * 10 >= row.whole(4) * 7 ? 1 : 0;
    }
    QJsonObject goals = view(u"progress"_s, u"Goals for this quarter"_s, points);
    goals.insert(u"art"_s, u"okr"_s);
    goals.insert(u"unit"_s, u"%"_s);
    return withBlock(asked
                         .say(u"%1 of %2 key results stand at seven tenths or better."_s,
                              u"%1 из %2 ключевых результатов выполнены на 70% и выше."_s)
                         .arg(reached)
                         .arg(rows.size()),
                     goals);
}

std::optional<Answer> workload(const Asked &asked) {
    const auto rows = asked.sql().rows(u"SELECT person, place, planned, available FROM capacity"
                                       u" WHERE account = ? ORDER BY position"_s,
                                       {asked.account()});
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    QStringList over;
    for (const Row &row : rows) {
        const int load = qRound(row.number(2) / row.number(3) * 100);
        points.append(QJsonObject{{u"label"_s, row.text(0)},
                                  {u"value"_s, load},
                                  {u"display"_s, u"%1%"_s.arg(load)},
                                  {u"hint"_s, row.text(1)}});
        if (load > 100)
            over.append(u"**%1** (%2%)"_s.arg(row.text(0)).arg(load));
    }
    QJsonObject load = view(u"hbar"_s, u"Load for the coming week"_s, points);
    load.insert(u"art"_s, u"workload"_s);
    load.insert(u"unit"_s, u"%"_s);
    return withBlock(
        asked.say(u"Over their hours next week: %1."_s, u"Перегружены на следующей неделе: %1."_s)
            .arg(over.isEmpty() ? u"—"_s : over.join(u", "_s)),
        load);
}

} // namespace kiv::sandbox
