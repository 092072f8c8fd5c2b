#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace kiv::canvas {

/// What an answer asks the canvas to draw, before an art has been chosen for it.
struct ViewSpec {
    struct Point {
        QString label;
        std::optional<double> value;
        std::optional<QString> display; ///< the value as the answer wrote it
        std::optional<double> target;
        std::optional<QString> status; ///< one of unknown, blocked, done, doing, todo
        std::optional<QString> hint;   ///< secondary text, such as an owner
        friend bool operator==(const Point &, const Point &) = default;
    };

    struct Series {
        QString name;
        QList<Point> points;
        friend bool operator==(const Series &, const Series &) = default;
    };

    /// A key figure.
    struct Item {
        QString label;
        std::optional<double> value;
        std::optional<QString> display;
        std::optional<QString> delta; ///< the change as written, such as +12%
        friend bool operator==(const Item &, const Item &) = default;
    };

    struct BoardCol {
        QString name;
        QList<Point> points; ///< the cards
        friend bool operator==(const BoardCol &, const BoardCol &) = default;
    };

    QString kind; ///< lower-cased; empty when the answer gave none
    std::optional<QString> title;
    std::optional<QString> unit;
    std::optional<QString> display;
    std::optional<QString> declaredArt; ///< the art that the answer asks for
    QList<Point> points;
    QList<Series> series;
    QList<Item> items;
    QStringList columns;
    QList<QStringList> rows;
    QList<BoardCol> boardCols;
    QStringList options;
    QString jsonKey; ///< identity: the canonical text of what it was read from

    friend bool operator==(const ViewSpec &, const ViewSpec &) = default;
};

} // namespace kiv::canvas
