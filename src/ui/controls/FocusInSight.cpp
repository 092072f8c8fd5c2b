#include "ui/controls/FocusInSight.h"

#include <algorithm>

namespace kiv::ui {

namespace {

/// What stays free above and below an item, so that it is seen where it stands.
constexpr double margin = 24;

} // namespace

void FocusInSight::setArea(QQuickItem *area) {
    m_area = area;
    if (!area)
        return;
    connect(area, &QQuickItem::windowChanged, this, &FocusInSight::follow);
    follow(area->window());
}

void FocusInSight::follow(QQuickWindow *window) {
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (window)
        connect(window, &QQuickWindow::activeFocusItemChanged, this, &FocusInSight::look);
}

void FocusInSight::look() {
    const QQuickItem *item = m_window ? m_window->activeFocusItem() : nullptr;
    const auto *content = m_area ? m_area->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!item || !content || !content->isAncestorOf(item))
        return;
    const double height = m_area->height();
    const double top = item->mapToItem(content, QPointF()).y() - margin;
    const double bottom = top + item->height() + 2 * margin;
    const double shown = m_area->property("contentY").toDouble();
    // The upper edge matters more where both do not fit.
    const double wanted = std::min(top, std::max(shown, bottom - height));
    const double most = std::max(0.0, m_area->property("contentHeight").toDouble() - height);
    m_area->setProperty("contentY", std::clamp(wanted, 0.0, most));
}

} // namespace kiv::ui
