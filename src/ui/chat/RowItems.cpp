#include "ui/chat/RowItems.h"

#include <QQuickWindow>

#include <algorithm>

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostSpare = 16; ///< of a kind

} // namespace

RowItems::RowItems(QQuickItem &feed, const QList<FeedDelegate *> &delegates,
                   std::function<void()> grown)
    : m_feed(feed), m_delegates(delegates), m_grown(std::move(grown)) {}

QQuickItem *RowItems::find(int row) const {
    const auto shown = m_shown.find(row);
    return shown == m_shown.end() ? nullptr : shown->second.item;
}

QQuickItem *RowItems::show(int row, const FeedRow &content) {
    const Shown taken = take(content);
    const auto place = m_shown.emplace(row, taken).first;
    // The tab key goes through items in the order in which they stack.
    if (const auto below = std::next(place); below != m_shown.end())
        taken.item->stackBefore(below->second.item);
    else if (place != m_shown.begin())
        taken.item->stackAfter(std::prev(place)->second.item);
    return taken.item;
}

RowItems::Shown RowItems::take(const FeedRow &content) {
    QList<QQuickItem *> &spare = m_spare[content.kind];
    if (spare.isEmpty())
        return {make(content), content.kind};
    QQuickItem *item = spare.takeLast();
    item->setWidth(m_feed.width());
    item->setProperty("row", QVariant::fromValue(content));
    item->setVisible(true);
    return {item, content.kind};
}

/// Something without a height where there is no delegate, or a broken one.
QQuickItem *RowItems::make(const FeedRow &content) {
    const auto delegate = std::ranges::find(m_delegates, content.kind, &FeedDelegate::kind);
    QObject *made = nullptr;
    if (delegate != m_delegates.end()) {
        QQmlComponent &view = *(*delegate)->view;
        made = view.createWithInitialProperties(
            {{u"row"_s, QVariant::fromValue(content)}, {u"width"_s, m_feed.width()}},
            view.creationContext());
        if (!made)
            qWarning("QML: %s", qPrintable(view.errorString()));
    }
    auto *item = qobject_cast<QQuickItem *>(made);
    if (!item)
        item = new QQuickItem;
    item->setParent(&m_feed);
    item->setParentItem(&m_feed);
    QObject::connect(item, &QQuickItem::implicitHeightChanged, &m_feed, m_grown);
    return item;
}

void RowItems::put(int row) {
    if (const auto shown = m_shown.find(row); shown != m_shown.end()) {
        giveBack(shown->second);
        m_shown.erase(shown);
    }
}

void RowItems::putOutside(int first, int last) {
    const QQuickItem *focused = m_feed.window() ? m_feed.window()->activeFocusItem() : nullptr;
    std::erase_if(m_shown, [&](const auto &entry) {
        const auto &[row, shown] = entry;
        // What holds a selection keeps it while it is out of sight.
        if ((row >= first && row < last) || (last > 0 && shown.item->isAncestorOf(focused)))
            return false;
        giveBack(shown);
        return true;
    });
}

void RowItems::giveBack(const Shown &shown) {
    QList<QQuickItem *> &spare = m_spare[shown.kind];
    if (spare.size() == mostSpare) {
        shown.item->deleteLater();
        return;
    }
    shown.item->setVisible(false);
    spare.append(shown.item);
}

void RowItems::move(int from, int by) {
    std::map<int, Shown> moved;
    for (const auto &[row, shown] : m_shown)
        moved.emplace(row < from ? row : row + by, shown);
    m_shown = std::move(moved);
}

} // namespace kiv::ui
