#include "../FuzzText.h"

#include "canvas/LinkScanner.h"
#include "canvas/SurfaceMatcher.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace kiv::canvas;

namespace {

bool isAscii(const QString &text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

/// The scanner finds what the pattern finds that it stands for. (What a blank is, and which letters
/// are one without case, each reads in its own way beyond ASCII.)
void checkScanner(const QString &text) {
    static const QRegularExpression pattern(
        uR"(\[[^\]]*\]\((https?://[^\s)]+|/[^\s)]+)\))"
        uR"(|(?:^|\s)(https?://(?:[a-z0-9.-]+)/(?:project|agent-profile|dashboard|team|p)/[^\s<)]+))"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption);
    LinkScanner links(text);
    auto expected = pattern.globalMatch(text);
    while (const auto found = links.next()) {
        mustHold(expected.hasNext());
        const auto match = expected.next();
        mustHold(*found == match.captured(match.lastCapturedIndex()));
    }
    mustHold(!expected.hasNext());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    static const QUrl base(u"https://kiv.example"_s);
    const QString text = fuzzText(data, size);
    if (isAscii(text))
        checkScanner(text);
    for (const QString &answer :
         {text, u"[a]("_s + text + u')', u"https://kiv.example/"_s + text}) {
        const auto link = SurfaceMatcher::match(answer, base);
        if (!link)
            continue;
        mustHold(link->url.host() == base.host() && link->url.scheme().startsWith(u"http"));
        mustHold(!link->title.isEmpty());
        // The page is one of its own accord too, and stays what it is when it is written out.
        const auto again = SurfaceMatcher::page(link->url.toString(QUrl::FullyEncoded), base);
        mustHold(again && *again == *link);
    }
    return 0;
}
