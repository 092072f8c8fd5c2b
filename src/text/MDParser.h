#pragma once

#include "text/MDBlock.h"

#include <QFlags>
#include <QStringView>

#include <optional>

/// Light markdown, as chat answers use it: a flat list of blocks, and inline mark-up within them.
namespace kiv::text::MDParser {

/// Reads a text line by line; what is no other block is a paragraph. Linear in the text's length.
QList<MDBlock> parse(QStringView text);

/// The blocks of a text from a cache of the last 400 texts, fewer when they are long: a text that
/// is laid out again keeps its ids. For the main thread; rows that still grow are better parsed.
QList<MDBlock> blocks(const QString &text);

enum class Style { Bold = 1, Italic = 2, Code = 4, Strike = 8 };
Q_DECLARE_FLAGS(Styles, Style)

/// A run of a block's text in one style.
struct InlineSpan {
    QString text;
    Styles styles;
    QString link; ///< where it leads: http, https or mailto; empty for none
    friend bool operator==(const InlineSpan &, const InlineSpan &) = default;
};

/// The styled runs of one block's text. Block mark-up and HTML in it are plain text, white space
/// stays, and of an image its words are shown.
QList<InlineSpan> inlineSpans(const QString &text);

/// What a single line is. Views into the line.
struct HeadingItem {
    int level = 1;
    QStringView text;
};
struct TaskItem {
    bool done = false;
    QStringView text;
};
struct OrderedItem {
    qint64 number = 0;
    QStringView text;
};
std::optional<HeadingItem> headingItem(QStringView line);
/// Three or more "-", "*" or "_", all the same.
bool isRule(QStringView line);
/// The line under the head of a table.
bool isTableRule(QStringView line);
QStringList cells(QStringView line);
std::optional<TaskItem> taskItem(QStringView line);
std::optional<QStringView> bulletItem(QStringView line);
std::optional<OrderedItem> orderedItem(QStringView line);

/// Without the spaces and tabs at both ends; line ends stay.
QStringView trimmed(QStringView line);

Q_DECLARE_OPERATORS_FOR_FLAGS(Styles)

} // namespace kiv::text::MDParser
