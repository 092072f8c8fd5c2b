#include "../FuzzText.h"

#include "canvas/CanvasIntents.h"
#include "canvas/CanvasNum.h"
#include "canvas/ProseFigure.h"
#include "canvas/TextCues.h"

#include <cmath>

using namespace kiv::canvas;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    if (const auto value = CanvasNum::parse(text))
        mustHold(std::isfinite(*value));
    if (const auto figure = kiv::canvas::proseFigure(text))
        mustHold(std::isfinite(figure->value));
    for (const auto &found : CanvasNum::numsIn(text))
        mustHold(found.range.start >= 0 && found.range.end() <= text.size());
    CanvasNum::numFromText(text);
    mustHold(CanvasNum::out(text).remove(QChar(u'\u202f')) ==
             QString(text).remove(QChar(u'\u202f')));
    CanvasEngine::stripInline(text);
    CanvasEngine::statusWord(text);

    // The shortcut to the candidates finds what the patterns find.
    std::optional<QString> expected;
    for (const auto &rule : CanvasIntents::rules()) {
        if (rule.matches(text.toLower())) {
            expected = rule.intent();
            break;
        }
    }
    mustHold(CanvasIntents::classify(text) == expected);
    return 0;
}
