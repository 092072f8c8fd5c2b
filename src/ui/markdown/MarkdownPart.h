#pragma once

#include "text/SearchText.h"

#include <QtQmlIntegration>

namespace kiv::ui {

/// Words in a part that the person looks for.
struct FoundWords {
    text::WordPlace place;
    bool isCurrent = false; ///< the one that the person is at
    friend bool operator==(const FoundWords &, const FoundWords &) = default;
};

/// A part of a block as the views hand it on: what it says is for `BlockText`.
struct MarkdownPart : text::BlockPart {
    Q_GADGET
    QML_VALUE_TYPE(markdownPart)
    Q_PROPERTY(int level READ level)
    Q_PROPERTY(bool begins READ begins)
    Q_PROPERTY(bool ends READ isEnd)
    Q_PROPERTY(bool goesOn READ goesOn)
    Q_PROPERTY(int block READ place)
    Q_PROPERTY(QList<bool> done READ done)
public:
    MarkdownPart() = default;
    MarkdownPart(text::BlockPart part) : BlockPart(std::move(part)) {}

    QList<FoundWords> found;

    /// Of a heading, 1 to 3.
    int level() const;
    /// A block begins with it.
    bool begins() const { return joint == Joint::Block; }
    bool isEnd() const { return ends; }
    /// It begins in the middle of a line or an item.
    bool goesOn() const { return joint == Joint::Text; }
    int place() const { return block; }
    /// Which tasks of a task list are done.
    QList<bool> done() const;
    /// The words of a task, without their mark-up; empty when there is no such task.
    Q_INVOKABLE QString taskWords(qsizetype index) const;

    friend bool operator==(const MarkdownPart &, const MarkdownPart &) = default;
};

} // namespace kiv::ui
