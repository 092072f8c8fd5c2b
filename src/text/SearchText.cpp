#include "text/SearchText.h"

#include "text/MDParser.h"

#include <algorithm>

namespace kiv::text {

namespace {

QString words(const QString &text) {
    QString words;
    for (const MDParser::InlineSpan &span : MDParser::inlineSpans(text))
        words += span.text;
    return words;
}

QStringList lines(const QString &text) {
    return text.split(u'\n');
}

struct LinesOf {
    BlockPart::Joint joint;

    QStringList operator()(const MDBlock::Heading &heading) const {
        return lines(words(heading.text));
    }
    QStringList operator()(const MDBlock::Paragraph &paragraph) const {
        return lines(words(paragraph.text));
    }
    QStringList operator()(const MDBlock::Bullets &bullets) const { return each(bullets.items); }
    QStringList operator()(const MDBlock::Ordered &ordered) const {
        QStringList items;
        for (const MDBlock::OrderedItem &item : ordered.items)
            items.append(words(item.text));
        return items;
    }
    QStringList operator()(const MDBlock::Tasks &tasks) const {
        QStringList items;
        for (const MDBlock::TaskItem &item : tasks.items)
            items.append(words(item.text));
        return items;
    }
    QStringList operator()(const MDBlock::Quote &quote) const {
        return lines(words(quote.lines.join(u'\n')));
    }
    QStringList operator()(const MDBlock::Code &code) const { return lines(code.text); }
    QStringList operator()(const MDBlock::Table &table) const {
        QStringList cells;
        if (joint == BlockPart::Joint::Block)
            cells = each(table.header);
        for (const QStringList &row : table.rows)
            cells += each(row);
        return cells;
    }
    QStringList operator()(const MDBlock::Rule &) const { return {}; }

    static QStringList each(const QStringList &texts) {
        QStringList shown;
        for (const QString &text : texts)
            shown.append(words(text));
        return shown;
    }
};

QStringList linesOf(const BlockPart &part, SearchText::Markup markup) {
    if (markup == SearchText::Markup::None)
        return lines(std::get<MDBlock::Paragraph>(part.content).text);
    return std::visit(LinesOf{part.joint}, part.content);
}

} // namespace

SearchText::SearchText(const QList<BlockPart> &parts, Markup markup) {
    QString text;
    for (int part = 0; part < parts.size(); ++part) {
        const QStringList shown = linesOf(parts.at(part), markup);
        if (parts.at(part).joint == BlockPart::Joint::Text)
            text.chop(1); // the line goes on
        for (int line = 0; line < shown.size(); ++line) {
            m_lines.append({text.size(), part, line});
            text += shown.at(line) + u'\n';
        }
    }
    m_text = FoldedText(text);
}

QList<WordPlace> SearchText::find(const FoldedText &words) const {
    QList<WordPlace> places;
    qsizetype line = 0;
    for (const FoldedText::Range &range : m_text.find(words)) {
        while (line + 1 < m_lines.size() && m_lines.at(line + 1).start <= range.start)
            ++line;
        const Line &at = m_lines.at(line);
        const qsizetype end =
            line + 1 < m_lines.size() ? m_lines.at(line + 1).start : range.start + range.length;
        places.append({at.part, at.line, static_cast<int>(range.start - at.start),
                       static_cast<int>(std::min(range.length, end - range.start))});
    }
    return places;
}

} // namespace kiv::text
