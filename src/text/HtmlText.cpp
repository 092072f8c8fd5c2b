#include "text/HtmlText.h"

#include "text/MDParser.h"

namespace kiv::text {

using namespace Qt::StringLiterals;
using MDParser::InlineSpan;
using MDParser::Style;

namespace {

QString in(const QString &tag, const QString &content) {
    return u'<' + tag + u'>' + content + u"</"_s + tag + u'>';
}

QString spanHtml(const InlineSpan &span) {
    QString html = span.text.toHtmlEscaped().replace(u'\n', u"<br>"_s);
    if (span.styles.testFlag(Style::Code))
        html = in(u"code"_s, html);
    if (span.styles.testFlag(Style::Strike))
        html = in(u"s"_s, html);
    if (span.styles.testFlag(Style::Italic))
        html = in(u"em"_s, html);
    if (span.styles.testFlag(Style::Bold))
        html = in(u"strong"_s, html);
    if (!span.link.isEmpty())
        html = u"<a href=\"%1\">"_s.arg(span.link.toHtmlEscaped()) + html + u"</a>"_s;
    return html;
}

QString wordsHtml(const QString &text) {
    QString html;
    for (const InlineSpan &span : MDParser::inlineSpans(text))
        html += spanHtml(span);
    return html;
}

QString rowHtml(const QStringList &cells, const QString &tag) {
    QString html;
    for (const QString &cell : cells)
        html += in(tag, wordsHtml(cell));
    return in(u"tr"_s, html);
}

struct BlockHtml {
    QString operator()(const MDBlock::Heading &heading) const {
        return in(u"h%1"_s.arg(heading.level), wordsHtml(heading.text));
    }
    QString operator()(const MDBlock::Paragraph &paragraph) const {
        return in(u"p"_s, wordsHtml(paragraph.text));
    }
    QString operator()(const MDBlock::Bullets &bullets) const {
        QString items;
        for (const QString &item : bullets.items)
            items += in(u"li"_s, wordsHtml(item));
        return in(u"ul"_s, items);
    }
    QString operator()(const MDBlock::Ordered &ordered) const {
        QString items;
        for (const MDBlock::OrderedItem &item : ordered.items)
            items += u"<li value=\"%1\">"_s.arg(item.number) + wordsHtml(item.text) + u"</li>"_s;
        return in(u"ol"_s, items);
    }
    QString operator()(const MDBlock::Tasks &tasks) const {
        QString items;
        for (const MDBlock::TaskItem &item : tasks.items)
            items += in(u"li"_s, (item.done ? u"☑ "_s : u"☐ "_s) + wordsHtml(item.text));
        return in(u"ul"_s, items);
    }
    QString operator()(const MDBlock::Quote &quote) const {
        return in(u"blockquote"_s, in(u"p"_s, wordsHtml(quote.lines.join(u'\n'))));
    }
    QString operator()(const MDBlock::Code &code) const {
        return in(u"pre"_s, in(u"code"_s, code.text.toHtmlEscaped()));
    }
    QString operator()(const MDBlock::Table &table) const {
        QString rows;
        for (const QStringList &cells : table.rows)
            rows += rowHtml(cells, u"td"_s);
        return in(u"table"_s,
                  in(u"thead"_s, rowHtml(table.header, u"th"_s)) + in(u"tbody"_s, rows));
    }
    QString operator()(const MDBlock::Rule &) const { return u"<hr>"_s; }
};

} // namespace

QString htmlOf(const QList<MDBlock> &blocks) {
    QStringList html;
    for (const MDBlock &block : blocks)
        html.append(std::visit(BlockHtml(), block.kind));
    return html.join(u'\n');
}

} // namespace kiv::text
