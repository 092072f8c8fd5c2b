#pragma once

#include "base/JVal.h"
#include "base/Regex.h"
#include "canvas/ViewSpec.h"

#include <QString>

#include <optional>

/// Finding what an answer wants drawn.
namespace kiv::canvas::CanvasEngine {

/// A fenced view, chart or kpi block: group 1 its language word, group 2 its body. A block that is
/// not closed yet does not match, so nothing is drawn from a half answer.
const Regex &fenceRegex();

/// Whether a whole block has arrived, without its body.
const Regex &closedFenceRe();

struct DrawableAnswer {
    QString text; ///< what is left to show in the chat
    std::optional<ViewSpec> spec;
    bool isLifted = false; ///< `spec` was read from prose, not from a block or a view
};

/// `view` is the structured view that the backend may attach to a row. An unreadable block stays in
/// the text.
DrawableAnswer extractViewSpec(const QString &text, const std::optional<JVal> &view = {});

} // namespace kiv::canvas::CanvasEngine
