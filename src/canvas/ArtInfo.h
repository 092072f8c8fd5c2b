#pragma once

#include "canvas/CanvasFollowup.h"
#include "canvas/ReplyOptions.h"
#include "canvas/SceneOut.h"
#include "canvas/ViewSpec.h"

#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

namespace kiv::canvas {

/// The canvas caption over a drawn scene.
struct ArtInfo {
    Q_GADGET
    QML_VALUE_TYPE(artInfo)
    Q_PROPERTY(QString art MEMBER art)
    Q_PROPERTY(QString word MEMBER word)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString countLine MEMBER countLine)
    Q_PROPERTY(QList<kiv::canvas::ReplyChip> chips MEMBER chips)
    Q_PROPERTY(QList<kiv::canvas::CanvasFollowup> followups MEMBER followups)
    Q_PROPERTY(QList<kiv::canvas::ReplyChip> offers READ offers STORED false)
public:
    QString art;       ///< empty when nothing is drawn
    QString word;      ///< the art as a word, such as "Cash flow"
    QString title;     ///< the scene's heading
    QString countLine; ///< the scene's count line
    QList<ReplyChip> chips;
    QList<CanvasFollowup> followups;

    /// What one click says next: the replies that came with the answer, else what the scene
    /// invites.
    QList<ReplyChip> offers() const;
    friend bool operator==(const ArtInfo &, const ArtInfo &) = default;
};

namespace ArtInfoFactory {

/// `scene` may be missing while it is still being drawn: the view then names it.
ArtInfo make(const QString &art, const ViewSpec &spec, const std::optional<SceneOut> &scene,
             const QList<ReplyChip> &chips);

} // namespace ArtInfoFactory

} // namespace kiv::canvas
