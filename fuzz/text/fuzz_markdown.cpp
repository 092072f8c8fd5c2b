#include "../FuzzText.h"

#include "text/MDParser.h"

using namespace kiv::text;

namespace {

qsizetype checkedSpans(const QString &text) {
    qsizetype size = 0;
    for (const MDParser::InlineSpan &span : MDParser::inlineSpans(text)) {
        mustHold(!span.text.isEmpty());
        size += span.text.size();
    }
    mustHold(size <= text.size());
    return size;
}

/// Checks one block; gives how much of the message it holds.
struct Check {
    qsizetype operator()(const MDBlock::Heading &heading) const {
        mustHold(heading.level >= 1 && heading.level <= 3 && !heading.text.isEmpty());
        checkedSpans(heading.text);
        return heading.text.size();
    }
    qsizetype operator()(const MDBlock::Paragraph &paragraph) const {
        mustHold(!paragraph.text.isEmpty());
        checkedSpans(paragraph.text);
        return paragraph.text.size();
    }
    qsizetype operator()(const MDBlock::Bullets &bullets) const { return all(bullets.items); }
    qsizetype operator()(const MDBlock::Ordered &ordered) const {
        qsizetype size = 0;
        for (const auto &item : ordered.items)
            size += one(item.text);
        return size;
    }
    qsizetype operator()(const MDBlock::Tasks &tasks) const {
        qsizetype size = 0;
        for (const auto &item : tasks.items)
            size += one(item.text);
        return size;
    }
    qsizetype operator()(const MDBlock::Quote &quote) const {
        qsizetype size = 0;
        for (const QString &line : quote.lines)
            size += line.size();
        return size;
    }
    qsizetype operator()(const MDBlock::Code &code) const { return code.text.size(); }
    qsizetype operator()(const MDBlock::Table &table) const {
        mustHold(!table.header.isEmpty());
        qsizetype size = table.header.join(QString()).size();
        for (const QStringList &row : table.rows)
            size += row.join(QString()).size();
        return size;
    }
    qsizetype operator()(const MDBlock::Rule &) const { return 3; }

private:
    static qsizetype one(const QString &item) {
        mustHold(!item.isEmpty());
        checkedSpans(item);
        return item.size();
    }
    static qsizetype all(const QStringList &items) {
        mustHold(!items.isEmpty());
        qsizetype size = 0;
        for (const QString &item : items)
            size += one(item);
        return size;
    }
};

} // namespace

/// No block holds what the message does not, and none is empty that must not be.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const QString text = fuzzText(data, size);
    qsizetype held = 0;
    for (const MDBlock &block : MDParser::parse(text))
        held += std::visit(Check(), block.kind);
    mustHold(held <= text.size());
    return 0;
}
