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
/// Nothing when there is no such art or the view lacks what the art needs. Only a decision that is
/// no choice of two gives way to the table when it is not forced.
std::optional<SceneOut> build(const ViewSpec &spec, const std::optional<QString> &intent,
                              const std::optional<QString> &forceArt = {});

/// What is drawn of an answer: where it lacks what the question asks for, the view's own art.
std::optional<SceneOut> vals(const ViewSpec &spec, const std::optional<QString> &intent);

} // namespace kiv::canvas::SceneAdapter
