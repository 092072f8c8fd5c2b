#pragma once

#include "canvas/SceneOut.h"
#include "canvas/ViewSpec.h"

#include <optional>

/// One builder per art, for the scene adapter alone. A builder fills everything but art and title,
/// and gives nothing when its minimum data is missing.
namespace kiv::canvas {

std::optional<SceneOut> buildReport(const ViewSpec &spec);
std::optional<SceneOut> buildCompare(const ViewSpec &spec);
std::optional<SceneOut> buildDecision(const ViewSpec &spec);
std::optional<SceneOut> buildAgents(const ViewSpec &spec);
std::optional<SceneOut> buildStatus(const ViewSpec &spec);
std::optional<SceneOut> buildFunnel(const ViewSpec &spec);
std::optional<SceneOut> buildUnit(const ViewSpec &spec);
std::optional<SceneOut> buildBrief(const ViewSpec &spec);
std::optional<SceneOut> buildRetro(const ViewSpec &spec);
std::optional<SceneOut> buildCosts(const ViewSpec &spec);
std::optional<SceneOut> buildCashflow(const ViewSpec &spec);
std::optional<SceneOut> buildOkr(const ViewSpec &spec);
std::optional<SceneOut> buildWorkload(const ViewSpec &spec);
std::optional<SceneOut> buildBudget(const ViewSpec &spec);

} // namespace kiv::canvas
