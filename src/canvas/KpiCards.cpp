#include "canvas/KpiCards.h"

#include "canvas/SceneText.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

/// Figures of which less is better, in English and Russian.
bool isBetterLow(const QString &label) {
    static const QStringList words{
        u"overdue"_s,    u"open task"_s,      u"open ticket"_s, u"open issue"_s, u"backlog"_s,
        u"blocked"_s,    u"churn"_s,          u"cost"_s,        u"spend"_s,      u"expense"_s,
        u"burn"_s,       u"debt"_s,           u"error"_s,       u"bug"_s,        u"incident"_s,
        u"outage"_s,     u"downtime"_s,       u"delay"_s,       u"latency"_s,    u"first reply"_s,
        u"reply time"_s, u"response time"_s,  u"complaint"_s,   u"refund"_s,     u"risk"_s,
        u"просроч"_s,    u"открытых задач"_s, u"блокир"_s,      u"отток"_s,      u"затрат"_s,
        u"расход"_s,     u"долг"_s,           u"ошиб"_s,        u"инцидент"_s,   u"простой"_s,
        u"задерж"_s,     u"время ответа"_s,   u"жалоб"_s,       u"возврат"_s,    u"риск"_s};
    const QString lower = label.toLower();
    return std::ranges::any_of(words, [&](const QString &word) { return lower.contains(word); });
}

/// A rise is good and a fall is bad, the other way round where less is better; a change written
/// without a sign is neither.
std::optional<bool> isGoodDelta(const QString &label, const QString &delta) {
    const QChar sign = delta.isEmpty() ? QChar() : delta.front();
    if (u"+▲↑"_s.contains(sign))
        return !isBetterLow(label);
    if (u"-−–▼↓"_s.contains(sign))
        return isBetterLow(label);
    return std::nullopt;
}

/// A change that is a plain number gets the sign that figures have for minus; words stay as
/// written.
QString changeText(const QString &delta) {
    bool isNumber = false;
    delta.toDouble(&isNumber);
    return isNumber && delta.startsWith(u'-') ? u'−' + delta.sliced(1) : delta;
}

} // namespace

QList<KpiCard> kpiCardsOf(const ViewSpec &spec) {
    const QString unit = spec.unit.value_or(QString());
    QList<KpiCard> cards;
    for (const ViewSpec::Item &item : spec.items) {
        const QString value = valueText(item, unit);
        const QString delta = changeText(item.delta.value_or(QString()).trimmed());
        if (!value.isEmpty())
            cards.append({item.label, value, delta, isGoodDelta(item.label, delta)});
    }
    return cards;
}

} // namespace kiv::canvas
