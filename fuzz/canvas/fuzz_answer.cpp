#include "../FuzzText.h"

#include "canvas/ArtChoice.h"
#include "canvas/ProseLifts.h"
#include "canvas/SceneAdapter.h"
#include "canvas/SpecReader.h"

#include <cmath>

using namespace kiv::canvas;

namespace {

bool isShare(double length) {
    return std::isfinite(length) && length >= 0 && length <= 100.001;
}

/// Whatever an answer holds, a scene's lengths stay on the sheet.
void checkScene(const SceneOut &scene) {
    mustHold(!scene.title.isEmpty() && !scene.countLine.isEmpty());
    for (const CoRow &row : scene.coRows)
        mustHold(isShare(std::abs(row.pct)));
    for (const Seg &segment : scene.coSegs)
        mustHold(isShare(segment.w));
    for (const UeRow &part : scene.ueRows)
        mustHold(isShare(part.w) && isShare(part.left));
    for (const FnStage &stage : scene.fnStages)
        mustHold(isShare(stage.w * 100));
    for (const BgRow &line : scene.bgRows)
        mustHold(isShare(line.planPct) && isShare(line.actPct));
    for (const CfMonth &month : scene.cfMonths)
        mustHold(isShare(month.outH) && isShare(month.balY));
    for (const CpRow &row : scene.cpRows)
        mustHold(row.cells.size() >= 4 && row.cells.size() == row.numeric.size());
    for (const Stream &stream : scene.streams)
        mustHold(stream.pct >= 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    const auto answer = CanvasEngine::extractViewSpec(text);
    mustHold(answer.text.size() <= text.size());
    CanvasEngine::liftList(text);
    CanvasEngine::liftKv(text);
    if (!answer.spec)
        return 0;
    mustHold(CanvasEngine::renderable(answer.spec));
    for (const QString &art : CanvasEngine::knownArts()) {
        if (const auto scene = SceneAdapter::build(*answer.spec, std::nullopt, art))
            checkScene(*scene);
    }
    return 0;
}
