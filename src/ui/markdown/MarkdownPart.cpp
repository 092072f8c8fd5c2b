#include "ui/markdown/MarkdownPart.h"

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

} // namespace kiv::ui
