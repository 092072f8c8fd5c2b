// Showing in a feed what was found in it.

#include "ui/chat/FeedView.h"
#include "ui/markdown/BlockText.h"

#include <algorithm>

namespace kiv::ui {

namespace {

/// What stays between found words and the edges of the view.
constexpr double margin = 48;
constexpr double sideMargin = 24;

/// Moves the flickables between `words` and `row`, so that `place` of the words shows.
void scrollSideways(QQuickItem *words, const QQuickItem *row, const QRectF &place) {
    for (QQuickItem *item = words->parentItem(); item && item != row; item = item->parentItem()) {
        if (!item->property("contentX").isValid())
            continue;
        const double left = item->property("contentX").toDouble();
        const QRectF inside = words->mapRectToItem(item, place);
        const double most = item->property("contentWidth").toDouble() - item->width();
        double to = left;
        if (inside.right() > item->width() - sideMargin)
            to = left + inside.right() - item->width() + sideMargin;
        if (inside.left() < sideMargin)
            to = left + inside.left() - sideMargin;
        item->setProperty("contentX", std::clamp(to, 0.0, std::max(most, 0.0)));
    }
}

} // namespace

void FeedView::showMarks() {
    m_items.each([this](int row, QQuickItem *item) {
        item->setProperty("row", QVariant::fromValue(m_rows->shown(row)));
    });
}

bool FeedView::revealFound(const QString &messageId, int part) {
    const int row = m_rows ? m_rows->rowOfPart(messageId, part) : -1;
    if (row < 0)
        return false;
    setFollowing(false);
    const double height = m_flickable->height();
    // Rows on the way may turn out to be higher than estimated.
    for (int pass = 0; pass < 2; ++pass) {
        const double upper = m_origin + m_heights.top(row);
        if (upper < top() || upper > top() + height - margin)
            moveTo(std::min(upper - height / 3, end()));
        layOut();
    }
    QQuickItem *item = itemOf(row);
    auto *words = item->findChild<BlockText *>();
    if (!words)
        return false;
    words->ensurePolished();
    const QRectF mark = words->currentMark();
    scrollSideways(words, item, mark);
    const double upper = m_origin + m_heights.top(row) + words->mapRectToItem(item, mark).top();
    if (upper < top() + margin || upper + mark.height() > top() + height - margin)
        moveTo(std::min(upper - height / 3, end()));
    layOut();
    return true;
}

} // namespace kiv::ui
