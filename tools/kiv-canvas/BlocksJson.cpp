#include "BlocksJson.h"

#include "text/MDParser.h"

#include <QJsonObject>

namespace kiv::tools {

using namespace Qt::StringLiterals;
using text::MDBlock;

namespace {

QJsonObject kindJson(const MDBlock::Heading &heading) {
    return {{u"kind"_s, u"heading"_s}, {u"level"_s, heading.level}, {u"text"_s, heading.text}};
}

QJsonObject kindJson(const MDBlock::Paragraph &paragraph) {
    return {{u"kind"_s, u"paragraph"_s}, {u"text"_s, paragraph.text}};
}

QJsonObject kindJson(const MDBlock::Bullets &bullets) {
    return {{u"kind"_s, u"bullets"_s}, {u"items"_s, QJsonArray::fromStringList(bullets.items)}};
}

QJsonObject kindJson(const MDBlock::Ordered &ordered) {
    QJsonArray items;
    for (const MDBlock::OrderedItem &item : ordered.items)
        items.append(QJsonObject{{u"number"_s, item.number}, {u"text"_s, item.text}});
    return {{u"kind"_s, u"ordered"_s}, {u"items"_s, items}};
}

QJsonObject kindJson(const MDBlock::Tasks &tasks) {
    QJsonArray items;
    for (const MDBlock::TaskItem &item : tasks.items)
        items.append(QJsonObject{{u"done"_s, item.done}, {u"text"_s, item.text}});
    return {{u"kind"_s, u"tasks"_s}, {u"items"_s, items}};
}

QJsonObject kindJson(const MDBlock::Quote &quote) {
    return {{u"kind"_s, u"quote"_s}, {u"lines"_s, QJsonArray::fromStringList(quote.lines)}};
}

QJsonObject kindJson(const MDBlock::Code &code) {
    return {{u"kind"_s, u"code"_s}, {u"text"_s, code.text}};
}

QJsonObject kindJson(const MDBlock::Table &table) {
    QJsonArray rows;
    for (const QStringList &row : table.rows)
        rows.append(QJsonArray::fromStringList(row));
    return {{u"kind"_s, u"table"_s},
            {u"header"_s, QJsonArray::fromStringList(table.header)},
            {u"rows"_s, rows}};
}

QJsonObject kindJson(const MDBlock::Rule &) {
    return {{u"kind"_s, u"rule"_s}};
}

} // namespace

QJsonArray blocksJson(QStringView text) {
    QJsonArray blocks;
    for (const MDBlock &block : text::MDParser::parse(text))
        blocks.append(std::visit([](const auto &kind) { return kindJson(kind); }, block.kind));
    return blocks;
}

} // namespace kiv::tools
