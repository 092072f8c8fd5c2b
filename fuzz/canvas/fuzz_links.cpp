#include "../FuzzText.h"

#include "canvas/SurfaceMatcher.h"

using namespace Qt::StringLiterals;
using namespace kiv::canvas;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    static const QUrl base(u"https://kiv.example"_s);
    if (const auto link = SurfaceMatcher::match(fuzzText(data, size), base))
        mustHold(link->url.host() == base.host() && link->url.scheme().startsWith(u"http") &&
                 !link->title.isEmpty());
    return 0;
}
