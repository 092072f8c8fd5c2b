#include "ui/shell/AreaCycle.h"

#include <QQuickWindow>

namespace kiv::ui {

namespace {

bool contains(const QQuickItem *area, const QQuickItem *item) {
    return area && item && (area == item || area->isAncestorOf(item));
}

/// Gives the focus to the first thing in `area` that takes it by the tab key.
bool enter(QQuickItem *area) {
    QQuickItem *first = area->nextItemInFocusChain(true);
    if (!contains(area, first))
        return false;
    first->forceActiveFocus(Qt::TabFocusReason);
    return true;
}

} // namespace

void AreaCycle::next() {
    const auto shown = std::find_if(m_areas.begin(), m_areas.end(),
                                    [](const QQuickItem *area) { return area && area->window(); });
    if (shown == m_areas.end())
        return;
    const QQuickItem *focused = (*shown)->window()->activeFocusItem();
    const auto current = std::find_if(m_areas.begin(), m_areas.end(), [&](const QQuickItem *area) {
        return contains(area, focused);
    });
    const qsizetype start = current == m_areas.end() ? -1 : current - m_areas.begin();
    for (qsizetype step = 1; step <= m_areas.size(); ++step) {
        QQuickItem *area = m_areas.at((start + step) % m_areas.size());
        if (area && area->isVisible() && enter(area))
            return;
    }
}

} // namespace kiv::ui
