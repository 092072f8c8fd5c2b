#include "text/BlockLinks.h"

#include "text/MDParser.h"

#include <algorithm>

namespace kiv::text {

namespace {

/// The texts of a block that inline mark-up is read in.
struct TextsOf {
    QStringList operator()(const MDBlock::Heading &heading) const { return {heading.text}; }
    QStringList operator()(const MDBlock::Paragraph &paragraph) const { return {paragraph.text}; }
    QStringList operator()(const MDBlock::Bullets &bullets) const { return bullets.items; }
    QStringList operator()(const MDBlock::Ordered &ordered) const { return each(ordered.items); }
    QStringList operator()(const MDBlock::Tasks &tasks) const { return each(tasks.items); }
    QStringList operator()(const MDBlock::Quote &quote) const { return {quote.lines.join(u'\n')}; }
    QStringList operator()(const MDBlock::Code &) const { return {}; }
    QStringList operator()(const MDBlock::Table &table) const {
        QStringList cells = table.header;
        for (const QStringList &row : table.rows)
            cells += row;
        return cells;
    }
    QStringList operator()(const MDBlock::Rule &) const { return {}; }

    template <typename Item>
    static QStringList each(const QList<Item> &items) {
        QStringList texts;
        for (const Item &item : items)
            texts.append(item.text);
        return texts;
    }
};

} // namespace

QList<BlockLink> linksOf(const QList<MDBlock> &blocks, qsizetype most) {
    QList<BlockLink> links;
    for (const MDBlock &block : blocks) {
        const QStringList texts = std::visit(TextsOf(), block.kind);
        for (const QString &text : texts) {
            if (links.size() >= most)
                return links;
            QString before;
            for (const MDParser::InlineSpan &span : MDParser::inlineSpans(text)) {
                const bool goesOn = std::exchange(before, span.link) == span.link;
                if (span.link.isEmpty())
                    continue;
                const auto known = std::ranges::find(links, span.link, &BlockLink::target);
                if (known != links.end()) {
                    if (goesOn && known == links.end() - 1)
                        known->words += span.text;
                } else if (links.size() < most) {
                    links.append({.words = span.text, .target = span.link});
                }
            }
        }
    }
    return links;
}

} // namespace kiv::text
