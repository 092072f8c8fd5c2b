#include "canvas/SceneAdapter.h"

#include "canvas/ArtChoice.h"
#include "canvas/SceneBuilders.h"
#include "canvas/SceneText.h"

namespace kiv::canvas {

using namespace Qt::StringLiterals;

namespace {

using Builder = std::optional<SceneOut> (*)(const ViewSpec &);

const QHash<QString, Builder> &builders() {
    static const QHash<QString, Builder> table{
        {u"report"_s, &buildReport},     {u"compare"_s, &buildCompare},
        {u"decision"_s, &buildDecision}, {u"agents"_s, &buildAgents},
        {u"status"_s, &buildStatus},     {u"funnel"_s, &buildFunnel},
        {u"unit"_s, &buildUnit},         {u"brief"_s, &buildBrief},
        {u"retro"_s, &buildRetro},       {u"costs"_s, &buildCosts},
        {u"cashflow"_s, &buildCashflow}, {u"okr"_s, &buildOkr},
        {u"workload"_s, &buildWorkload}, {u"budget"_s, &buildBudget},
    };
    return table;
}

} // namespace

const QList<SceneColor> &SceneAdapter::palette() {
    static const QList<SceneColor> colors{SceneColor::Violet, SceneColor::Blue, SceneColor::Green,
                                          SceneColor::Amber, SceneColor::Red};
    return colors;
}

std::optional<SceneOut> SceneAdapter::build(const ViewSpec &spec,
                                            const std::optional<QString> &intent,
                                            const std::optional<QString> &forceArt) {
    const auto art = forceArt ? forceArt : CanvasEngine::artForSpec(spec, intent);
    const Builder builder = art ? builders().value(*art) : nullptr;
    auto scene = builder ? builder(spec) : std::nullopt;
    // What is no choice of two is still a table.
    if (!scene && !forceArt && art == u"decision")
        return build(spec, intent, u"compare"_s);
    if (scene) {
        scene->art = *art;
        scene->title = sceneTitle(spec, *art);
    }
    return scene;
}

std::optional<SceneOut> SceneAdapter::vals(const ViewSpec &spec,
                                           const std::optional<QString> &intent) {
    const auto scene = build(spec, intent);
    return scene || !intent ? scene : build(spec, std::nullopt);
}

} // namespace kiv::canvas
