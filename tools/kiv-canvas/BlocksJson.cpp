#include "BlocksJson.h"

#include "text/MDParser.h"

namespace kiv::tools {

using text::MDBlock;

namespace {

/// Writes the kind of a block and what belongs to it.
struct KindWriter {
    JsonText &json;

    void operator()(const MDBlock::Heading &heading) const {
        json.member(u"kind", u"heading");
        json.member(u"level", heading.level);
        json.member(u"text", heading.text);
    }
    void operator()(const MDBlock::Paragraph &paragraph) const {
        json.member(u"kind", u"paragraph");
        json.member(u"text", paragraph.text);
    }
    void operator()(const MDBlock::Bullets &bullets) const {
        json.member(u"kind", u"bullets");
        json.member(u"items", bullets.items);
    }
    void operator()(const MDBlock::Ordered &ordered) const {
        json.member(u"kind", u"ordered");
        json.member(u"items", ordered.items, [this](const MDBlock::OrderedItem &item) {
            json.member(u"number", item.number);
            json.member(u"text", item.text);
        });
    }
    void operator()(const MDBlock::Tasks &tasks) const {
        json.member(u"kind", u"tasks");
        json.member(u"items", tasks.items, [this](const MDBlock::TaskItem &item) {
            json.member(u"done", item.done);
            json.member(u"text", item.text);
        });
    }
    void operator()(const MDBlock::Quote &quote) const {
        json.member(u"kind", u"quote");
        json.member(u"lines", quote.lines);
    }
    void operator()(const MDBlock::Code &code) const {
        json.member(u"kind", u"code");
        json.member(u"text", code.text);
    }
    void operator()(const MDBlock::Table &table) const {
        json.member(u"kind", u"table");
        json.member(u"header", table.header);
        json.member(u"rows", table.rows);
    }
    void operator()(const MDBlock::Rule &) const { json.member(u"kind", u"rule"); }
};

} // namespace

void writeBlocks(JsonText &json, QStringView text) {
    json.objects(text::MDParser::parse(text),
                 [&](const MDBlock &block) { std::visit(KindWriter{json}, block.kind); });
}

} // namespace kiv::tools
