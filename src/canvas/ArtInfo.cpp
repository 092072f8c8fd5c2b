#include "canvas/ArtInfo.h"

#include "canvas/SceneText.h"

namespace kiv::canvas {

QList<ReplyChip> ArtInfo::offers() const {
    if (!chips.isEmpty())
        return chips;
    QList<ReplyChip> offers;
    for (const CanvasFollowup &followup : followups)
        offers.append({.label = followup.label, .send = followup.send});
    return offers;
}

ArtInfo ArtInfoFactory::make(const QString &art, const ViewSpec &spec,
                             const std::optional<SceneOut> &scene, const QList<ReplyChip> &chips) {
    return {.art = art,
            .word = artWord(art),
            .title = scene ? scene->title : sceneTitle(spec, art),
            .countLine = scene ? scene->countLine : QString(),
            .chips = chips,
            .followups = scene ? followupsOf(*scene) : QList<CanvasFollowup>()};
}

} // namespace kiv::canvas
