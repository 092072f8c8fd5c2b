#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <variant>

namespace kiv::text {

/// One block of a message. Blocks do not nest; inline mark-up stays in the texts.
struct MDBlock {
    struct Heading {
        int level = 1; ///< 1 to 3
        QString text;
        friend bool operator==(const Heading &, const Heading &) = default;
    };
    struct Paragraph {
        QString text; ///< its lines, joined with a line feed
        friend bool operator==(const Paragraph &, const Paragraph &) = default;
    };
    struct Bullets {
        QStringList items;
        friend bool operator==(const Bullets &, const Bullets &) = default;
    };
    struct OrderedItem {
        qint64 number = 0; ///< as written
        QString text;
        friend bool operator==(const OrderedItem &, const OrderedItem &) = default;
    };
    struct Ordered {
        QList<OrderedItem> items;
        friend bool operator==(const Ordered &, const Ordered &) = default;
    };
    struct TaskItem {
        bool done = false;
        QString text;
        friend bool operator==(const TaskItem &, const TaskItem &) = default;
    };
    struct Tasks {
        QList<TaskItem> items;
        friend bool operator==(const Tasks &, const Tasks &) = default;
    };
    struct Quote {
        QStringList lines;
        friend bool operator==(const Quote &, const Quote &) = default;
    };
    struct Code {
        QString text; ///< the lines between the fences, joined with a line feed
        friend bool operator==(const Code &, const Code &) = default;
    };
    struct Table {
        QStringList header;
        QList<QStringList> rows; ///< as wide as each was written
        friend bool operator==(const Table &, const Table &) = default;
    };
    struct Rule {
        friend bool operator==(const Rule &, const Rule &) = default;
    };
    using Kind =
        std::variant<Heading, Paragraph, Bullets, Ordered, Tasks, Quote, Code, Table, Rule>;

    QUuid id; ///< tells rows of lists apart, nothing else
    Kind kind;
};

} // namespace kiv::text
