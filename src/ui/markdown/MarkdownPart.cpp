#include "ui/markdown/MarkdownPart.h"

#include "text/MDParser.h"

namespace kiv::ui {

using text::MDBlock;

int MarkdownPart::level() const {
    const auto *heading = std::get_if<MDBlock::Heading>(&content);
    return heading ? heading->level : 0;
}

QList<bool> MarkdownPart::done() const {
    QList<bool> states;
    if (const auto *tasks = std::get_if<MDBlock::Tasks>(&content)) {
        for (const MDBlock::TaskItem &item : tasks->items)
            states.append(item.done);
    }
    return states;
}

QString MarkdownPart::taskWords(qsizetype index) const {
    const auto *tasks = std::get_if<MDBlock::Tasks>(&content);
    QString words;
    if (tasks && index >= 0 && index < tasks->items.size()) {
        for (const auto &span : text::MDParser::inlineSpans(tasks->items.at(index).text))
            words += span.text;
    }
    return words;
}

} // namespace kiv::ui
