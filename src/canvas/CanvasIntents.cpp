#include "canvas/CanvasIntents.h"

#include "canvas/IntentIndex.h"

#include <QStringList>

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

struct Row {
    QString intent;
    QString pattern;
};

/// Narrow topics first, broad catch-alls last.
const QList<Row> &table() {
    static const QList<Row> rows{
        {u"roadmap"_s,
         u"roadmap|timeline of|gantt|next quarter|quarters|milestones|роадмап|дорожн[ао]|"
         u"карта развития|вехи"_s},
        {u"pulse"_s, u"pulse|morale|mood|burnout|how (is|does) the team feel|team health|настроени|"
                     u"выгоран|дух команд"_s},
        {u"tickets"_s, u"tickets?|support queue|inbox|sla breach|overdue|тикет|обращени|просроч|"
                       u"очередь поддержки"_s},
        {u"costs"_s, u"token|api cost|model cost|agent costs?|how much do the agents cost|"
                     u"spend per agent|трат(ы|а) на|сколько (стоят|тратят|тратит)|затраты на|"
                     u"стоимость агент|расход[ыа]? на агент|токен"_s},
        {u"access"_s,
         u"access|permission|iam|who can|audit|credentials|secrets|доступ (к агент|к систем|"
         u"к инструмент|у агент)|права (доступ|у агент|агент)|полномочи|разрешени|кто может"_s},
        {u"quality"_s,
         u"quality|accuracy|corrections?|how often (am i|do i) correct|wrong answers|качеств|"
         u"точност|поправля|исправля"_s},
        {u"ab"_s, u"a/b|experiment|variants?|test results|эксперимент|тест варианто"_s},
        {u"cohort"_s, u"cohort|retention|come back|churn by|когорт|возвращаемост|отток по"_s},
        {u"pricing"_s,
         u"pricing|price tiers?|pricing plans?|per seat|tiers|тариф|ценообразован|прайс"_s},
        {u"release"_s,
         u"release readiness|readiness|ship (on )?tuesday|launch checklist|release gates|"
         u"gates|готовность к релизу|гейты"_s},
        {u"uptime"_s, u"uptime|reliab|sla|downtime|outages|доступност|аптайм|простой|отказ"_s},
        {u"journey"_s,
         u"journey|first week|first day|user flow|customer experience|путь (клиента|юзера|"
         u"пользователя)"_s},
        {u"owners"_s, u"who owns|ownership|owners|raci|владел|ответственн|кто отвечает"_s},
        {u"costs"_s, u"weather|forecast|погод|температур|°\\s*[cCfF]|график погод"_s},
        {u"geo"_s,
         u"geograph|time ?zone|where are the (pilots|teams)|map of|географ|часов[ыые] пояс"_s},
        {u"okr"_s, u"okr|objective|key result|goals|окр|ключев[ыые] результ"_s},
        {u"funnel"_s,
         u"funnel|conversion|visitor|sign ?ups?|leads|воронк|конверси|регистрац|лид[ыов]"_s},
        {u"unit"_s, u"unit econom|cac|ltv|payback|margin|per (team|user|seat)|юнит[- ]?экономик|"
                    u"окупаемост|марж"_s},
        {u"vendors"_s, u"vendor|supplier|provider|вендор|поставщик|подрядчик"_s},
        {u"deps"_s,
         u"depend|critical path|waits? on|graph of tasks|зависимост|критическ[ийая] путь"_s},
        {u"retro"_s, u"retro|went well|sprint review|ретро|ретроспектив"_s},
        {u"onboarding"_s, u"onboard|онбординг|подключен[иея] (команд|клиентов|пилотов)"_s},
        {u"cashflow"_s,
         u"cash[- ]?flow|runway|balance|months? of cash|денежн[ыйое] поток|кассов|рануэй"_s},
        {u"stakeholders"_s, u"stakeholder|influence|who matters|стейкхолдер|заинтересован"_s},
        {u"heatmap"_s,
         u"heat ?map|by hour|hour by hour|when (do|are) .*(work|active)|теплокарт|по часа"_s},
        {u"hiring"_s, u"hir|candidate|recruit|interview|applicant|найм|кандидат|ваканс|собес"_s},
        {u"budget"_s, u"budget|spend|actual|over budget|expenses|бюджет|перерасход|смета"_s},
        {u"compare"_s,
         u"compet|compare us|versus them|market position|сравни(ть|те|м|л|ся)?[ ,:.!?]|"
         u"сравнение|vs\\b|конкурент"_s},
        {u"week"_s,
         u"my week|calendar|schedule|week plan|this week look|календар|расписан|план на недел"_s},
        {u"incident"_s,
         u"incident|what happened|outage|stall|postmortem|03:00|инцидент|что случилос|сбой"_s},
        {u"workload"_s,
         u"workload|busy|capacity|who is|bandwidth|hours|загрузк|перегруз|занятост"_s},
        {u"feedback"_s,
         u"feedback|customer|said|complain|review|support|отзыв|обратн[ауюи].*связ|жалоб"_s},
        {u"risks"_s, u"risk|wrong|threat|danger|blocker|риск|угроз|блокер"_s},
        {u"report"_s,
         u"report|weekly|summary of the week|recap|отч[её]т|сводк|итог[иова]|дайджест"_s},
        {u"agents"_s,
         u"agent|overnight|did|done|log|worked|activity|yesterday.*agent|агент[ыа]? (за ноч|"
         u"делали|сделали|наработали)|активност[ь] агентов|логи агентов"_s},
        {u"strategy"_s,
         u"strateg|roadmap|vision|direction|plan for|north|horizon|develop|стратег|видени|"
         u"куда движем"_s},
        {u"status"_s, u"status|progress|where are we|behind|ahead|on track|against|статус|прогресс|"
                      u"отста[её]м|опережа|по плану"_s},
        {u"decision"_s,
         u"decide|decision|vs|versus|or buy|option|compare|should we|решит[ье]|выбор между|"
         u"дилемм"_s},
        {u"brief"_s,
         u"meeting|sync|summar|brief|recording|call notes|бриф|саммар|пересказ|итоги (встреч|"
         u"созвона)|записк"_s},
        {u"how"_s, u"how|work|pipeline|architect|explain|как устроен|как работает|архитектур"_s},
    };
    return rows;
}

/// Split at every | outside parentheses.
QStringList alternativesOf(const QString &pattern) {
    QStringList alternatives{QString()};
    int depth = 0;
    for (const QChar c : pattern) {
        depth += c == u'(' ? 1 : c == u')' ? -1 : 0;
        if (c == u'|' && depth == 0)
            alternatives.append(QString());
        else
            alternatives.last() += c;
    }
    return alternatives;
}

} // namespace

/// Taken apart at `.*`, which as one pattern would run to the end of the line from every place
/// where its first half stands.
CanvasIntents::Rule::Rule(QString intent, const QString &pattern)
    : m_intent(std::move(intent)), m_pattern(pattern) {
    QStringList plain;
    for (const QString &alternative : alternativesOf(pattern)) {
        const qsizetype gap = alternative.indexOf(u".*");
        if (gap < 0)
            plain.append(alternative);
        else
            m_gaps.push_back({Regex(alternative.first(gap), Regex::CaseInsensitive),
                              Regex(alternative.sliced(gap + 2), Regex::CaseInsensitive)});
    }
    m_plain = std::make_unique<Regex>(plain.join(u'|'), Regex::CaseInsensitive);
}

bool CanvasIntents::Rule::matches(QStringView question) const {
    return m_plain->contains(question) ||
           std::any_of(m_gaps.begin(), m_gaps.end(),
                       [question](const Gap &gap) { return gap.matches(question); });
}

bool CanvasIntents::Rule::Gap::matches(QStringView question) const {
    static const Regex restOfLine(u".*");
    qsizetype from = 0;
    while (const auto first = before.find(question, from)) {
        const auto rest = restOfLine.find(question, first->range().end());
        if (!rest || after.contains(rest->captured()))
            return rest.has_value();
        from = rest->range().end();
    }
    return false;
}

const std::vector<CanvasIntents::Rule> &CanvasIntents::rules() {
    static const std::vector<Rule> compiled = [] {
        std::vector<Rule> result;
        for (const Row &row : table())
            result.emplace_back(row.intent, row.pattern);
        return result;
    }();
    return compiled;
}

std::optional<QString> CanvasIntents::classify(const QString &question) {
    static const IntentIndex index = [] {
        IntentIndex result;
        for (qsizetype rule = 0; rule < table().size(); ++rule) {
            for (const QString &alternative : alternativesOf(table().at(rule).pattern))
                result.add(static_cast<std::size_t>(rule), alternative);
        }
        return result;
    }();
    const QString lower = question.toLower();
    const std::vector<bool> candidates = index.candidates(lower);
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (candidates[i] && rules()[i].matches(lower))
            return rules()[i].intent();
    }
    return std::nullopt;
}

} // namespace kiv::canvas
