#pragma once

#include "base/JVal.h"
#include "canvas/ReplyOptions.h"
#include "canvas/SurfaceMatcher.h"
#include "canvas/ViewSpec.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <variant>

namespace kiv::canvas {

struct RestoredArt {
    ViewSpec spec;
    QString query;
    QList<ReplyChip> chips;
};

/// The answer has nothing to draw: the canvas says so under this question.
struct RestoredHint {
    QString query;
};

struct RestoredPage {
    SurfaceLink link;
    QString query;
};

/// What an opened chat puts on the canvas; monostate for nothing.
using RestoredCanvas = std::variant<std::monostate, RestoredArt, RestoredHint, RestoredPage>;

/// One line of a conversation as far as the canvas is concerned.
struct ConversationLine {
    enum class Who { You, Agent };
    Who who = Who::Agent;
    QString text;
    std::optional<JVal> view;
};

namespace CanvasEngine {

/// What the newest answer of a conversation, oldest line first, leaves on the canvas. `baseUrl` is
/// the platform's own address.
RestoredCanvas latestDrawable(const QList<ConversationLine> &messages, const QUrl &baseUrl);

} // namespace CanvasEngine

} // namespace kiv::canvas
