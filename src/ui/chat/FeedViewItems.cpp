// The items of the rows in sight: made, handed from row to row of a kind, and put by.

#include "ui/chat/FeedView.h"

#include <QQuickWindow>

#include <algorithm>

namespace kiv::ui {

namespace {

constexpr qsizetype mostSpare = 16;

} // namespace

QQuickItem *FeedView::itemOf(int row) {
    if (const auto shown = m_shown.find(row); shown != m_shown.end())
        return shown->second.item;
    const Shown taken = take(row);
    const auto place = m_shown.emplace(row, taken).first;
    // The tab key goes through items in the order in which they stack.
    if (const auto below = std::next(place); below != m_shown.end())
        taken.item->stackBefore(below->second.item);
    else if (place != m_shown.begin())
        taken.item->stackAfter(std::prev(place)->second.item);
    return taken.item;
}

FeedView::Shown FeedView::take(int row) {
    const FeedRow content = m_rows->shown(row);
    const QVariant value = QVariant::fromValue(content);
    QList<QQuickItem *> &spare = m_spare[content.kind];
    if (!spare.isEmpty()) {
        QQuickItem *item = spare.takeLast();
        item->setWidth(width());
        item->setProperty("row", value);
        item->setVisible(true);
        return {item, content.kind};
    }
    const auto delegate = std::ranges::find(m_delegates, content.kind, &FeedDelegate::kind);
    QObject *made = nullptr;
    if (delegate != m_delegates.end()) {
        QQmlComponent &view = *(*delegate)->view;
        made = view.createWithInitialProperties(
            {{QStringLiteral("row"), value}, {QStringLiteral("width"), width()}},
            view.creationContext());
        if (!made)
            qWarning("QML: %s", qPrintable(view.errorString()));
    }
    auto *item = qobject_cast<QQuickItem *>(made);
    if (!item)
        item = new QQuickItem;
    item->setParent(this);
    item->setParentItem(this);
    connect(item, &QQuickItem::implicitHeightChanged, this, &FeedView::rowGrew);
    return {item, content.kind};
}

void FeedView::giveBack(const Shown &shown) {
    QList<QQuickItem *> &spare = m_spare[shown.kind];
    if (spare.size() == mostSpare) {
        shown.item->deleteLater();
        return;
    }
    shown.item->setVisible(false);
    spare.append(shown.item);
}

void FeedView::giveBackOutside(int first, int last) {
    const QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    std::erase_if(m_shown, [&](const auto &entry) {
        const auto &[row, shown] = entry;
        // What holds a selection keeps it while it is out of sight.
        if ((row >= first && row < last) || (last > 0 && shown.item->isAncestorOf(focused)))
            return false;
        giveBack(shown);
        return true;
    });
}

/// The items from the row `from` on belong to the row that is `by` further down.
void FeedView::moveShown(int from, int by) {
    std::map<int, Shown> moved;
    for (const auto &[row, shown] : m_shown)
        moved.emplace(row < from ? row : row + by, shown);
    m_shown = std::move(moved);
}

} // namespace kiv::ui
