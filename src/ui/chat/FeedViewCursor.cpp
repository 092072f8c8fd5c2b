// The message in a feed that keys act on.

#include "ui/chat/FeedView.h"

#include <algorithm>

namespace kiv::ui {

namespace {

/// How much of the view a step within a long message goes.
constexpr double stride = 0.8;
/// Between what has the keys and the view's edge.
constexpr double stopMargin = 16;

} // namespace

void FeedView::enterCursor() {
    if (m_rows && m_rows->rowsOf(m_cursor).second == 0)
        setCursor(messageAt(std::max(
            top(), std::min(top() + m_flickable->height(), m_origin + m_heights.total()) - 1)));
}

void FeedView::stepCursor(int by) {
    const auto [first, last] = m_rows ? m_rows->rowsOf(m_cursor) : std::pair(0, 0);
    if (first == last) {
        enterCursor();
        return;
    }
    // What of a long message is out of sight comes before the next one.
    const double hidden = by > 0 ? m_origin + m_heights.top(last) - top() - m_flickable->height()
                                 : top() - m_origin - m_heights.top(first);
    if (hidden > 1) {
        setFollowing(false);
        const double step = std::min(hidden + (by > 0 ? number("bottomMargin") : 0),
                                     stride * m_flickable->height());
        moveTo(std::min(top() + (by > 0 ? step : -step), end()));
        polish();
        return;
    }
    const QString beside = m_rows->messageBeside(m_cursor, by);
    if (beside.isEmpty())
        return;
    setCursor(beside);
    reveal(beside);
    // Going down a message begins at its top, going up at its end.
    if (const double lower = m_origin + m_heights.top(m_rows->rowsOf(beside).second);
        by < 0 && lower > top() + m_flickable->height())
        moveTo(std::min(lower - m_flickable->height(), end()));
    if (end() - top() <= m_distance)
        jump();
}

void FeedView::setCursor(const QString &messageId) {
    if (m_cursor == messageId)
        return;
    m_cursor = messageId;
    Q_EMIT cursorChanged();
    polish();
}

void FeedView::showStop(QQuickItem *stop) {
    if (!stop || !isAncestorOf(stop))
        return;
    const QRectF place = stop->mapRectToItem(this, stop->boundingRect());
    const double upper = place.top() - stopMargin;
    const double lower = place.bottom() + stopMargin - m_flickable->height();
    if (upper >= top() && lower <= top())
        return;
    setFollowing(false);
    moveTo(std::min(upper < top() ? upper : lower, end()));
}

void FeedView::placeCursor() {
    const auto [first, last] = m_rows->rowsOf(m_cursor);
    const double upper = m_origin + m_heights.top(first);
    const QRectF place = first == last
                             ? QRectF()
                             : QRectF(0, upper, width(), m_origin + m_heights.top(last) - upper);
    if (std::exchange(m_cursorPlace, place) != place)
        Q_EMIT cursorPlaceChanged();
}

} // namespace kiv::ui
