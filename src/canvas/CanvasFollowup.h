#pragma once

#include "canvas/SceneOut.h"

#include <QList>
#include <QString>

namespace kiv::canvas {

/// A question that a scene invites.
struct CanvasFollowup {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString send MEMBER send)
public:
    QString label;
    QString send; ///< what is sent as the person's message
    friend bool operator==(const CanvasFollowup &, const CanvasFollowup &) = default;
};

/// At most three, about what stands out in the scene: lines over plan, streams behind, people with
/// too much work, the widest loss of a funnel.
QList<CanvasFollowup> followupsOf(const SceneOut &scene);

} // namespace kiv::canvas
