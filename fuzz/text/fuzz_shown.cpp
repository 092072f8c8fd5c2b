#include "../FuzzText.h"

#include "text/BlockParts.h"
#include "text/FoldedText.h"
#include "text/HtmlText.h"
#include "text/MDParser.h"
#include "text/SearchText.h"

#include <QSet>
#include <QUrl>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace kiv::text;

namespace {

/// What a document of XML may hold; of other characters no reader takes any.
bool isXml(const QString &text) {
    for (const QChar c : text) {
        const bool isControl = c.unicode() < 0x20 && c != u'\t' && c != u'\n';
        if (isControl || c.isNonCharacter() || c.unicode() >= 0xfffe)
            return false;
    }
    return text.isValidUtf16();
}

/// Every tag of the HTML is one of ours and is closed, and no link leads to anything that runs.
void checkHtml(const QList<MDBlock> &blocks) {
    const QSet<QString> known{u"a"_s,     u"blockquote"_s, u"br"_s,  u"code"_s, u"em"_s,
                              u"h1"_s,    u"h2"_s,         u"h3"_s,  u"hr"_s,   u"li"_s,
                              u"ol"_s,    u"p"_s,          u"pre"_s, u"s"_s,    u"strong"_s,
                              u"table"_s, u"tbody"_s,      u"td"_s,  u"th"_s,   u"thead"_s,
                              u"tr"_s,    u"ul"_s,         u"all"_s};
    QString html = htmlOf(blocks);
    html.replace(u"<br>"_s, u"<br/>"_s).replace(u"<hr>"_s, u"<hr/>"_s);
    QXmlStreamReader reader(u"<all>"_s + html + u"</all>"_s);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        mustHold(known.contains(reader.name().toString()));
        for (const QXmlStreamAttribute &attribute : reader.attributes()) {
            const bool isLink = attribute.name() == u"href"_s;
            mustHold(isLink || attribute.name() == u"value"_s);
            const QString link = attribute.value().toString();
            const bool isPath = link.startsWith(u'/') && !link.startsWith(u"//"_s);
            const QStringList safe{u"http"_s, u"https"_s, u"mailto"_s};
            mustHold(!isLink || isPath || safe.contains(QUrl(link).scheme(), Qt::CaseInsensitive));
        }
    }
    mustHold(!reader.hasError());
}

/// Each block has its parts, one after the other, and they end once.
void checkParts(const QList<MDBlock> &blocks) {
    int block = -1;
    bool hasEnded = true;
    for (const BlockPart &part : partsOf(blocks)) {
        if (part.joint == BlockPart::Joint::Block) {
            mustHold(hasEnded && part.block == block + 1);
            block = part.block;
        }
        mustHold(part.block == block && part.content.index() == blocks.at(block).kind.index());
        hasEnded = part.ends;
    }
    mustHold(hasEnded && block + 1 == blocks.size());
}

/// What is found stands there, in order and apart from each other.
void checkSearch(const QString &text, const QString &words) {
    const FoldedText folded(words);
    qsizetype end = 0;
    for (const FoldedText::Range &range : FoldedText(text).find(folded)) {
        mustHold(range.length > 0 && range.start >= end);
        end = range.start + range.length;
        mustHold(end <= text.size());
        mustHold(!FoldedText(text.sliced(range.start, range.length)).find(folded).isEmpty());
    }
}

} // namespace

/// How a message shows: its parts, its HTML, and what is found in it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    const QList<MDBlock> blocks = MDParser::parse(text);
    checkParts(blocks);
    if (isXml(text))
        checkHtml(blocks);

    const QString words = text.section(u'\n', 0, 0);
    const QString rest = text.section(u'\n', 1);
    checkSearch(rest, words);
    using Markup = SearchText::Markup;
    const QList<BlockPart> parts = partsOf(blocks);
    for (const WordPlace &place : SearchText(parts, Markup::Read).find(FoldedText(words.left(3)))) {
        mustHold(place.part >= 0 && place.part < parts.size());
        mustHold(place.line >= 0 && place.start >= 0 && place.length > 0);
    }
    return 0;
}
