#include "ui/chat/FeedView.h"

#include "ui/chat/RowEstimate.h"

#include <algorithm>
#include <ctime>

namespace kiv::ui {

namespace {

/// What is laid out above and below what is in sight.
constexpr double reserve = 160;
constexpr double revealMargin = 16;
/// How often heights may turn out to be other than estimated before the rest waits for a frame.
constexpr int mostPasses = 8;
/// How long this thread works at rows for one frame, in seconds. Those that are left keep their
/// place free, or their former width, until the next.
constexpr double makingTime = 0.03;

double workingTime() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

FeedView::FeedView(QQuickItem *parent)
    : QQuickItem(parent), m_items(*this, m_delegates, [this] { rowGrew(); }) {
    connect(this, &FeedView::bottomUpChanged, this, &QQuickItem::polish);
    connect(this, &FeedView::upperMarginChanged, this, &QQuickItem::polish);
}

void FeedView::setRows(FeedRows *rows) {
    if (m_rows == rows)
        return;
    if (m_rows)
        m_rows->disconnect(this);
    m_rows = rows;
    if (rows) {
        connect(rows, &FeedRows::modelReset, this, &FeedView::reset);
        connect(rows, &FeedRows::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) { insertRows(first, last); });
        connect(rows, &FeedRows::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) { removeRows(first, last); });
        connect(rows, &FeedRows::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last) {
                    changeRows(first.row(), last.row());
                });
        connect(rows, &FeedRows::marksChanged, this, &FeedView::showMarks);
    }
    reset();
    Q_EMIT rowsChanged();
}

void FeedView::setFlickable(QQuickItem *flickable) {
    if (m_flickable == flickable)
        return;
    if (m_flickable)
        m_flickable->disconnect(this);
    m_flickable = flickable;
    if (flickable) {
        // The signals are those of a flickable, whose class is not public.
        connect(flickable, SIGNAL(contentYChanged()), this, SLOT(viewMoved()));
        connect(flickable, SIGNAL(heightChanged()), this, SLOT(viewMoved()));
    }
    Q_EMIT flickableChanged();
    polish();
}

void FeedView::componentComplete() {
    QQuickItem::componentComplete();
    reset();
}

void FeedView::geometryChange(const QRectF &now, const QRectF &before) {
    QQuickItem::geometryChange(now, before);
    if (now.width() == before.width() || !isComponentComplete() || !m_flickable)
        return;
    // Every height is another one now; the row at the upper edge stays there.
    const int anchor = anchorRow();
    const double place = m_origin + m_heights.top(anchor);
    estimateAll();
    m_origin = place - m_heights.top(anchor);
    polish();
}

void FeedView::estimateAll() {
    QList<double> heights;
    const int count = m_rows ? m_rows->rowCount() : 0;
    heights.reserve(count);
    for (int row = 0; row < count; ++row)
        heights.append(estimate(row));
    m_heights.assign(std::move(heights));
}

double FeedView::estimate(int row) const {
    return estimatedHeight(m_rows->at(row), width());
}

void FeedView::reset() {
    if (!isComponentComplete())
        return;
    m_items.putAll();
    m_gap.reset();
    m_origin = 0;
    estimateAll();
    setFollowing(true);
    polish();
}

void FeedView::insertRows(int first, int last) {
    if (!isComponentComplete())
        return;
    QList<double> heights;
    double sum = 0;
    for (int row = first; row <= last; ++row) {
        heights.append(estimate(row));
        sum += heights.last();
    }
    const bool fillsGap = m_gap && m_gap->row == first;
    if (fillsGap)
        m_gap.reset();
    closeGap();
    const bool isAbove = !fillsGap && m_heights.count() > 0 && first <= anchorRow();
    m_heights.insert(first, heights);
    if (isAbove)
        m_origin -= sum;
    m_items.move(first, last - first + 1);
    // Who writes goes on from there.
    const FeedRow &newest = m_rows->at(last);
    if (last + 1 == m_heights.count() && newest.mine && newest.delivery == store::Delivery::Pending)
        setFollowing(true);
    if (!m_following)
        countUnseen();
    polish();
}

void FeedView::removeRows(int first, int last) {
    if (!isComponentComplete())
        return;
    closeGap();
    const int anchor = anchorRow();
    if (last < anchor)
        m_origin += m_heights.top(last + 1) - m_heights.top(first);
    else if (first <= anchor)
        m_gap = {first, m_heights.top(last + 1) - m_heights.top(first)};
    for (int row = first; row <= last; ++row)
        m_items.put(row);
    m_heights.remove(first, last - first + 1);
    m_items.move(last + 1, first - last - 1);
    if (!m_following)
        countUnseen();
    polish();
}

/// What went from the upper edge has gone for good: what is below stays where it is.
void FeedView::closeGap() {
    if (m_gap)
        m_origin += m_gap->height;
    m_gap.reset();
}

void FeedView::changeRows(int first, int last) {
    if (!isComponentComplete())
        return;
    for (int row = first; row <= last; ++row) {
        // Nobody sees it: it is laid out when the view shows again.
        if (!isVisible())
            m_items.put(row);
        if (QQuickItem *item = m_items.find(row))
            item->setProperty("row", QVariant::fromValue(m_rows->shown(row)));
        else
            setRowHeight(row, estimate(row));
    }
    polish();
}

/// A row above what is in sight grows upwards.
void FeedView::setRowHeight(int row, double height) {
    const double change = height - m_heights.height(row);
    if (change == 0)
        return;
    if (row < anchorRow())
        m_origin -= change;
    m_heights.set(row, height);
}

QQuickItem *FeedView::itemOf(int row) {
    QQuickItem *item = m_items.find(row);
    if (!item)
        return m_items.show(row, m_rows->shown(row));
    item->setWidth(width());
    return item;
}

void FeedView::rowGrew() {
    if (!m_layingOut)
        polish();
}

/// Gives the rows in sight their items and their own heights; those that have none yet wait for
/// another frame when this thread has worked `until` then.
FeedView::Sight FeedView::layOutSight(double until) {
    Sight sight{.first = m_heights.rowAt(top() - reserve - m_origin), .isSettled = true};
    const double lower = top() + m_flickable->height() + reserve;
    int row = sight.first;
    for (; row < m_heights.count() && m_origin + m_heights.top(row) <= lower; ++row) {
        const QQuickItem *item = m_items.find(row);
        const bool isMade = item && item->width() == width();
        if (!isMade && workingTime() > until) {
            sight.isWhole = false;
            continue;
        }
        const double height = itemOf(row)->implicitHeight();
        if (height != m_heights.height(row)) {
            setRowHeight(row, height);
            sight.isSettled = false;
        }
    }
    sight.end = row;
    return sight;
}

void FeedView::itemChange(ItemChange change, const ItemChangeData &data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged && data.boolValue)
        polish();
}

void FeedView::updatePolish() {
    if (isVisible())
        layOut();
}

void FeedView::layOut() {
    if (!m_flickable || !m_rows)
        return;
    m_layingOut = true;
    closeGap();
    const bool isMoved = m_following && !m_held;
    const double until = workingTime() + makingTime;
    Sight sight;
    for (int pass = 0; pass < mostPasses && !sight.isSettled; ++pass) {
        setExtents();
        if (isMoved)
            moveTo(end());
        sight = layOutSight(until);
    }
    m_items.putOutside(sight.first, sight.end);
    if (!m_held)
        moveOrigin();
    m_items.each([this](int row, QQuickItem *item) { item->setY(m_origin + m_heights.top(row)); });
    placeCursor();
    m_layingOut = false;
    if (!sight.isSettled || !sight.isWhole) // this frame ends only when nothing asks for more of it
        QMetaObject::invokeMethod(this, &QQuickItem::polish, Qt::QueuedConnection);
}

void FeedView::setExtents() {
    const double height = m_origin + m_heights.total();
    double margin = m_upperMargin - m_origin;
    if (m_bottomUp)
        margin = std::max(margin, m_flickable->height() - height - number("bottomMargin"));
    setNumber("topMargin", margin);
    setNumber("contentHeight", height);
}

double FeedView::end() const {
    const double end =
        m_origin + m_heights.total() + number("bottomMargin") - m_flickable->height();
    return std::max(end, -number("topMargin"));
}

double FeedView::number(const char *property) const {
    return m_flickable->property(property).toDouble();
}

void FeedView::setNumber(const char *property, double value) {
    if (number(property) != value)
        m_flickable->setProperty(property, value);
}

void FeedView::moveTo(double place) {
    setNumber("contentY", std::max(place, -number("topMargin")));
}

/// Puts the first row back to where the content begins, and the view with it.
void FeedView::moveOrigin() {
    const double by = -std::exchange(m_origin, 0);
    if (by == 0)
        return;
    const double place = top() + by;
    // The content is made larger before the view moves and smaller after it, so that the view never
    // meets its bounds.
    if (by > 0)
        setNumber("contentHeight", m_heights.total());
    else
        setNumber("topMargin", number("topMargin") - by);
    moveTo(place);
    setExtents();
}

void FeedView::setHeld(bool held) {
    if (std::exchange(m_held, held) == held)
        return;
    Q_EMIT heldChanged();
    viewMoved();
}

void FeedView::viewMoved() {
    if (m_layingOut || !m_flickable)
        return;
    if (m_held) {
        setFollowing(end() - top() <= m_distance);
        if (top() <= m_origin + m_distance)
            Q_EMIT topReached();
    }
    polish();
}

void FeedView::jump() {
    setFollowing(true);
    polish();
}

bool FeedView::reveal(const QString &messageId) {
    const auto [first, last] = m_rows ? m_rows->rowsOf(messageId) : std::pair(0, 0);
    if (first == last)
        return false;
    setFollowing(false);
    // Rows on the way may turn out to be higher than estimated.
    for (int pass = 0; pass < 2; ++pass) {
        const double upper = m_origin + m_heights.top(first) - revealMargin;
        const double lower = m_origin + m_heights.top(last) + revealMargin;
        const double height = m_flickable->height();
        if (upper < top() || lower - upper > height)
            moveTo(std::min(upper, end()));
        else if (lower > top() + height)
            moveTo(std::min(lower - height, end()));
        layOut();
    }
    return true;
}

QString FeedView::messageAt(double y) const {
    const double place = y - m_origin;
    if (place < 0 || place >= m_heights.total())
        return {};
    return m_rows->at(m_heights.rowAt(place)).messageId;
}

void FeedView::setFollowing(bool following) {
    if (std::exchange(m_following, following) == following)
        return;
    m_seen = following || !m_rows ? QString() : m_rows->lastMessage();
    Q_EMIT followingChanged();
    countUnseen();
}

void FeedView::countUnseen() {
    // Another conversation has come in the place of the one that was read.
    if (!m_following && m_rows->rowsOf(m_seen).second == 0)
        setFollowing(true);
    const int unseen = m_following ? 0 : m_rows->messagesAfter(m_seen);
    if (std::exchange(m_unseen, unseen) != unseen)
        Q_EMIT unseenChanged();
}

} // namespace kiv::ui
