#include "Asked.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

/// A topic and the word stems that ask for it. The topic with the most and longest stems found
/// wins; of equal ones the first.
struct TopicWords {
    Topic topic;
    QStringList stems;
};

const QList<TopicWords> &topics() {
    static const QList<TopicWords> table = {
        {weeklyReport,
         {u"week"_s, u"report"_s, u"summary"_s, u"недел"_s, u"отчёт"_s, u"отчет"_s, u"сводк"_s}},
        {hostingOptions,
         {u"hosting"_s, u"compare"_s, u"server option"_s, u"хостинг"_s, u"сравн"_s}},
        {decision,
         {u"decide"_s, u"decision"_s, u"should"_s, u"invoicing"_s, u"build or buy"_s, u"решени"_s,
          u"решить"_s, u"выбрать"_s}},
        {releasePlan,
         {u"who does"_s, u"who is working"_s, u"overnight"_s, u"roadmap"_s, u"for the release"_s,
          u"timeline"_s, u"кто что"_s, u"за ночь"_s, u"план релиза"_s}},
        {projectStatus,
         {u"status"_s, u"where do we stand"_s, u"progress"_s, u"against the plan"_s, u"on track"_s,
          u"статус"_s, u"прогресс"_s, u"как идут"_s}},
        {trialFunnel, {u"funnel"_s, u"trial"_s, u"conversion"_s, u"воронк"_s, u"конверс"_s}},
        {unitCost,
         {u"unit"_s, u"per invoice"_s, u"one invoice"_s, u"себестоим"_s, u"юнит"_s, u"один счёт"_s,
          u"один счет"_s}},
        {todaysBrief,
         {u"brief"_s, u"needs me"_s, u"today"_s, u"attention"_s, u"бриф"_s, u"сегодня"_s,
          u"внимани"_s}},
        {blockedTasks,
         {u"blocked"_s, u"stuck"_s, u"blocker"_s, u"блокир"_s, u"застря"_s, u"мешает"_s}},
        {retrospective, {u"retro"_s, u"went well"_s, u"ретро"_s}},
        {budget, {u"budget"_s, u"plan against actual"_s, u"over plan"_s, u"бюджет"_s, u"смет"_s}},
        {costs,
         {u"cost"_s, u"spend"_s, u"money go"_s, u"расход"_s, u"тратит"_s, u"затрат"_s,
          u"деньги"_s}},
        {cashFlow, {u"cash"_s, u"in and out"_s, u"balance"_s, u"денежн"_s, u"поток"_s, u"касс"_s}},
        {goalScores, {u"goal"_s, u"okr"_s, u"objective"_s, u"key result"_s, u"цели"_s, u"целей"_s}},
        {workload,
         {u"workload"_s, u"overload"_s, u"capacity"_s, u"busy"_s, u"нагруз"_s, u"загруз"_s,
          u"загружен"_s}},
        {rankedRevenue, {u"rank"_s, u"which project earns"_s, u"рейтинг"_s}},
        {revenueTrend, {u"trend"_s, u"revenue over"_s, u"динамик"_s, u"тренд"_s}},
        {spendByProject, {u"spend by project"_s, u"spend per project"_s, u"расходы по проектам"_s}},
        {highlightCards, {u"highlight"_s, u"cards"_s, u"карточк"_s, u"главное"_s}},
        {headline, {u"headline"_s, u"at a glance"_s, u"коротко"_s}},
        {choices, {u"options do i have"_s, u"what can you"_s, u"что ты умеешь"_s, u"что умеешь"_s}},
        {projectTable, {u"table"_s, u"таблиц"_s}},
        {taskCounts, {u"how many tasks"_s, u"task count"_s, u"tasks by"_s, u"сколько задач"_s}},
        {openTaskList, {u"list"_s, u"tasks"_s, u"список"_s, u"задач"_s}},
        {keyFacts, {u"fact"_s, u"figures"_s, u"numbers"_s, u"цифр"_s, u"факт"_s}},
        {projectPage, {u"page"_s, u"link"_s, u"dashboard"_s, u"страниц"_s, u"ссылк"_s}},
        {nextSteps, {u"what next"_s, u"next step"_s, u"suggest"_s, u"что дальше"_s, u"предлож"_s}},
        {goAhead, {u"go ahead"_s, u"release now"_s, u"start the"_s, u"запусти"_s, u"начинай"_s}},
        {guide,
         {u"how do"_s, u"how does"_s, u"explain"_s, u"guide"_s, u"объясни"_s, u"как работает"_s,
          u"инструкц"_s}},
        {greeting,
         {u"hello"_s, u"hi there"_s, u"who are you"_s, u"привет"_s, u"здравств"_s, u"кто ты"_s}},
    };
    return table;
}

qsizetype weight(const TopicWords &words, const QString &question) {
    qsizetype found = 0;
    for (const QString &stem : words.stems)
        found += question.contains(stem) ? stem.size() : 0;
    return found;
}

Answer nothingRecorded(const Asked &asked) {
    return {asked
                .say(u"I looked, but there is nothing recorded about that for **%1** yet. "
                     "As soon as its agents book figures or tasks, I can lay them out here."_s,
                     u"Я посмотрел, но по теме **%1** пока ничего не записано. "
                     "Как только агенты внесут данные или задачи, я смогу их показать."_s)
                .arg(asked.subject())};
}

} // namespace

Answer composeAnswer(Sql &sql, const Question &question) {
    const Asked asked(sql, question);
    const QString text = question.text.toLower();
    const TopicWords *best = nullptr;
    qsizetype bestWeight = 0;
    for (const TopicWords &words : topics()) {
        const qsizetype here = weight(words, text);
        if (here > bestWeight) {
            best = &words;
            bestWeight = here;
        }
    }
    if (!best)
        return plainAnswer(asked);
    const std::optional<Answer> answer = best->topic(asked);
    return answer ? *answer : nothingRecorded(asked);
}

} // namespace kiv::sandbox
