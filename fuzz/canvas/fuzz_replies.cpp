#include "../FuzzText.h"

#include "base/Text.h"
#include "canvas/ReplyOptions.h"

using namespace kiv::canvas;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    const auto parsed = ReplyOptions::parse(text);
    mustHold(parsed.text.size() <= text.size() && parsed.chips.size() <= 4);
    for (const ReplyChip &chip : parsed.chips)
        mustHold(!chip.label.isEmpty() && kiv::characterCount(chip.label) <= 80);
    ReplyOptions::parse(text, {.choiceOptions = text.split(u'\n'), .errorMessage = text});
    return 0;
}
