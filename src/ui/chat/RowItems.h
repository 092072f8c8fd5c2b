#pragma once

#include "ui/chat/FeedRow.h"

#include <QHash>
#include <QQuickItem>

#include <functional>
#include <map>

namespace kiv::ui {

/// The items of the rows that are in sight: made, handed from row to row of their kind, and put by.
class RowItems {
public:
    /// The items are children of `feed`, made of `delegates`; both outlive this. `grown` is told
    /// when one of them wants another height.
    RowItems(QQuickItem &feed, const QList<FeedDelegate *> &delegates, std::function<void()> grown);

    /// Null for a row that has none.
    QQuickItem *find(int row) const;
    /// Gives a row that has none the item that shows `content`.
    QQuickItem *show(int row, const FeedRow &content);
    void put(int row);
    /// All but the rows from `first` to before `last`, and what has the focus among them.
    void putOutside(int first, int last);
    void putAll() { putOutside(0, 0); }
    /// The items from the row `from` on belong to the row that is `by` further down.
    void move(int from, int by);

    /// Calls `visit(row, item)` for every row that has one, from the top down.
    template <typename Visit>
    void each(Visit visit) const {
        for (const auto &[row, shown] : m_shown)
            visit(row, shown.item);
    }

private:
    struct Shown {
        QQuickItem *item = nullptr;
        FeedDelegate::Kind kind = FeedDelegate::Paragraph;
    };

    Shown take(const FeedRow &content);
    QQuickItem *make(const FeedRow &content);
    void giveBack(const Shown &shown);

    QQuickItem &m_feed;
    const QList<FeedDelegate *> &m_delegates;
    std::function<void()> m_grown;
    std::map<int, Shown> m_shown; ///< by row
    QHash<FeedDelegate::Kind, QList<QQuickItem *>> m_spare;
};

} // namespace kiv::ui
