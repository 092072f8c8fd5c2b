#include "canvas/ArtChoice.h"

#include "canvas/CanvasNum.h"
#include "canvas/TextCues.h"

#include <algorithm>

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

struct KindRow {
    QString kind;
    QString art;
    QString alternatives; ///< in order, between spaces
};

const QList<KindRow> &kindTable() {
    static const QList<KindRow> table{
        {u"kpi"_s, u"report"_s, u"report costs unit"_s},
        {u"cards"_s, u"brief"_s, u"brief week hiring feedback owners pricing journey onboarding"_s},
        {u"table"_s, u"compare"_s, u"compare budget tickets risks ab vendors access onboarding"_s},
        {u"compare"_s, u"decision"_s, u"decision budget ab vendors"_s},
        {u"timeline"_s, u"agents"_s, u"agents incident journey roadmap"_s},
        {u"progress"_s, u"status"_s, u"status okr budget uptime roadmap onboarding"_s},
        {u"checklist"_s, u"brief"_s, u"brief week release journey onboarding roadmap"_s},
        {u"board"_s, u"retro"_s, u"retro hiring"_s},
        {u"donut"_s, u"unit"_s, u"unit"_s},
        {u"funnel"_s, u"funnel"_s, u"funnel"_s},
        {u"bar"_s, u"costs"_s, u"costs compare workload budget"_s},
        {u"hbar"_s, u"costs"_s, u"costs compare workload budget week quality"_s},
        {u"rank"_s, u"costs"_s, u"costs compare quality"_s},
        {u"line"_s, u"cashflow"_s, u"cashflow costs pulse"_s},
        {u"area"_s, u"cashflow"_s, u"cashflow costs"_s},
        {u"stacked"_s, u"costs"_s, u"costs budget"_s},
    };
    return table;
}

/// Enough rows score both options; otherwise the table is no decision.
bool scoresTwoOptions(const ViewSpec &spec) {
    const auto scored =
        std::count_if(spec.rows.begin(), spec.rows.end(), [](const QStringList &row) {
            return row.size() >= 3 && CanvasNum::parse(row.at(1)) && CanvasNum::parse(row.at(2));
        });
    const qsizetype sixTenths = (spec.rows.size() * 3 + 4) / 5;
    return scored >= std::max<qsizetype>(sixTenths, 2);
}

bool ranksNothing(const ViewSpec &spec) {
    return !spec.points.isEmpty() &&
           std::all_of(spec.points.begin(), spec.points.end(),
                       [](const ViewSpec::Point &point) { return point.value.value_or(0) == 0; });
}

/// A few days or degrees read better as bars than as a cash-flow line.
bool isShortLine(const ViewSpec &spec, const std::optional<QString> &intent) {
    if (spec.series.size() > 1 || intent == u"cashflow"_s)
        return false;
    const bool inSeries = !spec.series.isEmpty() && !spec.series.first().points.isEmpty();
    const qsizetype count = inSeries ? spec.series.first().points.size() : spec.points.size();
    if (count < 1 || count > 8)
        return false;
    return intent == u"costs"_s || CanvasEngine::looksTemp(spec) || CanvasEngine::looksDays(spec);
}

} // namespace

const QStringList &CanvasEngine::knownArts() {
    static const QStringList arts{u"report"_s,   u"compare"_s, u"decision"_s, u"agents"_s,
                                  u"status"_s,   u"funnel"_s,  u"unit"_s,     u"brief"_s,
                                  u"retro"_s,    u"costs"_s,   u"cashflow"_s, u"okr"_s,
                                  u"workload"_s, u"budget"_s};
    return arts;
}

const QHash<QString, QString> &CanvasEngine::kindToArt() {
    static const QHash<QString, QString> arts = [] {
        QHash<QString, QString> result;
        for (const KindRow &row : kindTable())
            result.insert(row.kind, row.art);
        return result;
    }();
    return arts;
}

const QHash<QString, QStringList> &CanvasEngine::kindAlts() {
    static const QHash<QString, QStringList> alternatives = [] {
        QHash<QString, QStringList> result;
        for (const KindRow &row : kindTable())
            result.insert(row.kind, row.alternatives.split(u' '));
        return result;
    }();
    return alternatives;
}

std::optional<QString> CanvasEngine::artForSpec(const ViewSpec &spec,
                                                const std::optional<QString> &intent) {
    QString art = kindToArt().value(spec.kind);
    const QStringList alternatives = kindAlts().value(spec.kind);

    const QString declared = spec.declaredArt.value_or(QString());
    const bool mayDeclare =
        spec.kind.isEmpty() || declared == art || alternatives.contains(declared);
    if (knownArts().contains(declared) && mayDeclare)
        art = declared;
    if (intent && alternatives.contains(*intent) && knownArts().contains(*intent))
        art = *intent;
    if (art.isEmpty())
        return std::nullopt;

    if (art == u"decision" && !scoresTwoOptions(spec))
        art = u"compare"_s;
    if (spec.kind == u"rank" && ranksNothing(spec))
        art = u"compare"_s;
    const bool isLine = spec.kind == u"line" || spec.kind == u"area";
    if (isLine && art == u"cashflow" && isShortLine(spec, intent))
        art = u"costs"_s;
    return art;
}

} // namespace kiv::canvas
