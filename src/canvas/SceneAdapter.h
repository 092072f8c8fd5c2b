#pragma once

#include "canvas/SceneOut.h"
#include "canvas/ViewSpec.h"

#include <optional>

/// Turns a view into a scene. Every figure of a scene is in the answer or follows from its
/// figures; what the answer lacks stays empty.
namespace kiv::canvas::SceneAdapter {

/// The colours that rows and series take in turn.
const QList<SceneColor> &palette();

/// The scene of `forceArt`, or of the art that fits the view and the question's intent.
/// Nothing when there is no such art or the view lacks what the art needs. Two arts give way when
/// they are not forced: a budget that the question asked for to the view's own art, a decision that
/// is no choice of two to the table.
std::optional<SceneOut> build(const ViewSpec &spec, const std::optional<QString> &intent,
                              const std::optional<QString> &forceArt = {});

std::optional<SceneOut> vals(const ViewSpec &spec, const std::optional<QString> &intent);

} // namespace kiv::canvas::SceneAdapter
