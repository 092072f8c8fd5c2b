// Answers that are text first: lists, tables, links, options and plain prose.

#include "Asked.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

const QString openCount = u"SUM(CASE WHEN closed IS NULL THEN 1 ELSE 0 END)"_s;

/// Project slug, open tasks, overdue tasks and blocked tasks, a row for each project.
QList<Row> taskFigures(const Asked &asked) {
    const QString overdue = u"SUM(CASE WHEN closed IS NULL AND due < '%1' THEN 1 ELSE 0 END)"_s.arg(
        asked.asOf().toString(Qt::ISODate));
    const QString blocked = u"SUM(CASE WHEN state = 'blocked' THEN 1 ELSE 0 END)"_s;
    return asked.tasks(u"slug, %1, %2, %3"_s.arg(openCount, overdue, blocked),
                       u"GROUP BY slug ORDER BY 2 DESC"_s);
}

} // namespace

std::optional<Answer> projectTable(const Asked &asked) {
    const auto rows = taskFigures(asked);
    if (rows.isEmpty())
        return std::nullopt;
    QString table = u"| Project | Open | Overdue | Blocked |\n| :--- | ---: | ---: | ---: |\n"_s;
    for (const Row &row : rows)
        table += u"| %1 | %2 | %3 | %4 |\n"_s.arg(asked.projectLabel(row.text(0)))
                     .arg(row.whole(1))
                     .arg(row.whole(2))
                     .arg(row.whole(3));
    return Answer{
        asked.say(u"Tasks of %1 as they stand now:\n\n%2"_s, u"Задачи на сейчас, %1:\n\n%2"_s)
            .arg(asked.subject(), table.trimmed())};
}

std::optional<Answer> taskCounts(const Asked &asked) {
    const auto rows = taskFigures(asked);
    if (rows.isEmpty())
        return std::nullopt;
    QJsonArray points;
    qint64 total = 0;
    for (const Row &row : rows) {
        points.append(
            QJsonObject{{u"label"_s, asked.projectLabel(row.text(0))}, {u"value"_s, row.whole(1)}});
        total += row.whole(1);
    }
    // The view travels beside the text here, not inside it.
    const QJsonObject view{
        {u"kind"_s, u"bar"_s}, {u"title"_s, u"Open tasks by project"_s}, {u"points"_s, points}};
    return Answer{asked
                      .say(u"There are %1 open tasks in %2. The chart shows how they are spread "
                           "over the projects."_s,
                           u"Открытых задач: %1 (%2). На графике — как они распределены по "
                           "проектам."_s)
                      .arg(total)
                      .arg(asked.subject()),
                  {{u"view"_s, view}}};
}

std::optional<Answer> openTaskList(const Asked &asked) {
    const auto rows = taskFigures(asked);
    if (rows.isEmpty())
        return std::nullopt;
    QString list;
    for (const Row &row : rows)
        list += u"- %1: %2\n"_s.arg(asked.projectLabel(row.text(0))).arg(row.whole(1));
    return Answer{asked
                      .say(u"Open tasks, the longest lists first:\n\n%1"_s,
                           u"Открытые задачи, сначала самые длинные списки:\n\n%1"_s)
                      .arg(list.trimmed())};
}

std::optional<Answer> keyFacts(const Asked &asked) {
    const auto rows = asked.rows(u"SUM(revenue), SUM(releases), MAX(reply_minutes)"_s, u"weekly"_s,
                                 u"AND week = 0 HAVING COUNT(*) > 0"_s);
    if (rows.isEmpty())
        return std::nullopt;
    const Row &row = rows.constFirst();
    return Answer{asked
                      .say(u"The week of %1 in three lines:\n\nRevenue: %2\nReleases: %3\n"
                           "Slowest reply: %4"_s,
                           u"Неделя в трёх строках (%1):\n\nВыручка: %2\nРелизы: %3\n"
                           "Самый долгий ответ: %4"_s)
                      .arg(asked.subject(), euros(row.whole(0)))
                      .arg(row.whole(1))
                      .arg(hoursMinutes(row.whole(2)))};
}

std::optional<Answer> projectPage(const Asked &asked) {
    const auto found = asked.slug().isEmpty()
                           ? asked.rows(u"slug, label"_s, u"projects"_s, u"ORDER BY position"_s)
                           : asked.rows(u"slug, label"_s, u"projects"_s);
    if (found.isEmpty())
        return std::nullopt;
    const bool dashboard = asked.question().text.contains(u"dashboard"_s, Qt::CaseInsensitive);
    const QString path = dashboard ? u"/dashboard/%1"_s : u"/project/%1?tab=tasks"_s;
    return Answer{asked
                      .say(u"Everything about it is on its own page: [%1](%2). It opens here "
                           "beside our conversation."_s,
                           u"Всё об этом на отдельной странице: [%1](%2). Она откроется рядом с "
                           "разговором."_s)
                      .arg(found.constFirst().text(1), path.arg(found.constFirst().text(0)))};
}

std::optional<Answer> nextSteps(const Asked &asked) {
    return Answer{asked.say(
        u"Three things would help most right now: clear what is blocked, choose a hosting option, "
        "and look at the budget before the month ends. Where shall I begin?\n\n"
        "OPTIONS: What is blocked? | Compare the hosting options | Are we within budget?"_s,
        u"Сейчас полезнее всего три вещи: снять блокировки, выбрать хостинг и посмотреть бюджет до "
        "конца месяца. С чего начать?\n\n"
        "ВАРИАНТЫ: Что заблокировано? | Сравни варианты хостинга | Какой у нас бюджет?"_s)};
}

/// The same offer, but beside the text.
std::optional<Answer> choices(const Asked &asked) {
    const QStringList options{asked.say(u"Weekly report"_s, u"Отчёт за неделю"_s),
                              asked.say(u"Where does the money go?"_s, u"Куда уходят деньги?"_s),
                              asked.say(u"Who is overloaded?"_s, u"Кто перегружен?"_s)};
    return Answer{asked
                      .say(u"I can look at %1 from three sides. Which one helps you now?"_s,
                           u"Могу показать (%1) с трёх сторон. Что сейчас нужнее?"_s)
                      .arg(asked.subject()),
                  {{u"choice_options"_s, strings(options)}}};
}

std::optional<Answer> goAhead(const Asked &asked) {
    return Answer{asked
                      .say(u"I can start that for **%1** now. It will use the agents' time for "
                           "about an hour and cannot be undone half-way. Shall I go ahead?"_s,
                           u"Могу запустить это для **%1** сейчас. Займёт около часа времени "
                           "агентов, на полпути не отменить. Начинать?"_s)
                      .arg(asked.subject()),
                  {{u"confirm_ask"_s, true}}};
}

std::optional<Answer> guide(const Asked &asked) {
    return Answer{asked.say(
        u"## How work gets done here\n\n"
        "Each project has a **room** and a few *agents*. A question goes to one of them:\n\n"
        "- the room answers for the whole project;\n"
        "- an agent answers only for its own work;\n"
        "- KIV sees everything.\n\n"
        "To hand over a task:\n\n"
        "1. Open the agent's chat.\n"
        "2. Say what should be true at the end.\n"
        "3. Attach what it needs, five files at most.\n\n"
        "- [x] The plan is agreed\n"
        "- [ ] The result is reviewed\n\n"
        "> Ask for a table, a chart or a list and the answer is laid out beside the chat.\n\n"
        "A question can be as short as `weekly report`.\n\n---\n\n"
        "```\nproject room  ->  agents  ->  answer\n```"_s,
        u"## Как здесь устроена работа\n\n"
        "У каждого проекта есть **комната** и несколько *агентов*. Вопрос уходит кому-то "
        "одному:\n\n"
        "- комната отвечает за весь проект;\n"
        "- агент отвечает только за свою работу;\n"
        "- KIV видит всё.\n\n"
        "Чтобы передать задачу:\n\n"
        "1. Откройте чат агента.\n"
        "2. Скажите, каким должен быть итог.\n"
        "3. Приложите файлы, не больше пяти.\n\n"
        "> Попросите таблицу, график или список, и ответ появится рядом с чатом."_s)};
}

std::optional<Answer> greeting(const Asked &asked) {
    const QString name = asked.question().scope.name;
    const QJsonArray starters{
        QJsonObject{{u"label"_s, asked.say(u"Weekly report"_s, u"Отчёт за неделю"_s)},
                    {u"prompt"_s, asked.say(u"How was the week?"_s, u"Как прошла неделя?"_s)}},
        QJsonObject{{u"label"_s, asked.say(u"Where we stand"_s, u"Где мы сейчас"_s)},
                    {u"prompt"_s,
                     asked.say(u"Where are we against the plan?"_s, u"Какой статус проектов?"_s)}}};
    return Answer{asked
                      .say(u"Hello, **%1** here. I answer from the figures and tasks that are "
                           "booked for %2, and I say so when there is nothing to go by."_s,
                           u"Привет, это **%1**. Я отвечаю по данным и задачам (%2) и честно "
                           "говорю, когда данных нет."_s)
                      .arg(name, asked.subject()),
                  {{u"starters"_s, starters}}};
}

Answer plainAnswer(const Asked &asked) {
    const auto rows = asked.tasks(openCount + u", COUNT(*)"_s);
    const Row &row = rows.constFirst();
    const QString files =
        asked.question().files.isEmpty()
            ? QString()
            : asked
                  .say(u" What you attached is kept with this conversation: %1."_s,
                       u" Приложенное сохранено в этом разговоре: %1."_s)
                  .arg(asked.question().files.join(u", "_s));
    return {asked
                .say(u"I have noted that. For %1 I can see %2 open tasks out of %3 on record; ask "
                     "me about the week, the status, the costs or the plan and I will lay the "
                     "figures out.%4"_s,
                     u"Принято. Сейчас вижу (%1): открытых задач %2, всего записано %3. Спросите о "
                     "неделе, статусе, расходах или плане, и я покажу цифры.%4"_s)
                .arg(asked.subject())
                .arg(row.whole(0))
                .arg(row.whole(1))
                .arg(files)};
}

} // namespace kiv::sandbox
