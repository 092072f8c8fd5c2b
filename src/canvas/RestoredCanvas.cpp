#include "canvas/RestoredCanvas.h"

#include "canvas/AnswerReading.h"
#include "canvas/SceneAdapter.h"

#include <algorithm>

namespace kiv::canvas {

RestoredCanvas CanvasEngine::latestDrawable(const QList<ConversationLine> &messages,
                                            const QUrl &baseUrl) {
    using Who = ConversationLine::Who;
    const auto writtenBy = [](Who who) {
        return [who](const ConversationLine &line) { return line.who == who; };
    };
    const auto answer = std::find_if(messages.rbegin(), messages.rend(), writtenBy(Who::Agent));
    if (answer == messages.rend())
        return std::monostate();
    const auto question = std::find_if(answer, messages.rend(), writtenBy(Who::You));
    const QString query = question == messages.rend() ? QString() : question->text.trimmed();

    const AnswerReading reading = readAnswer(answer->text, answer->view);
    if (reading.spec) {
        if (SceneAdapter::vals(*reading.spec, std::nullopt))
            return RestoredArt{*reading.spec, query, reading.chips};
        return RestoredHint{query};
    }
    if (const auto link = SurfaceMatcher::match(answer->text, baseUrl))
        return RestoredPage{*link, query};
    if (query.isEmpty())
        return std::monostate();
    return RestoredHint{query};
}

} // namespace kiv::canvas
