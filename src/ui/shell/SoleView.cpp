#include "ui/shell/SoleView.h"

#include <QQuickWindow>

namespace kiv::ui {

void SoleView::setWanted(bool wanted) {
    if (wanted != m_active)
        wanted ? enter() : leave();
}

void SoleView::enter() {
    const QQuickWindow *window = m_area ? m_area->window() : nullptr;
    m_before = window ? window->activeFocusItem() : nullptr;
    if (window && !(m_before && m_area->isAncestorOf(m_before)))
        m_area->forceActiveFocus();
    m_active = true;
    Q_EMIT activeChanged();
}

void SoleView::leave() {
    m_active = false;
    Q_EMIT activeChanged();
    if (m_before && m_before->isVisible())
        m_before->forceActiveFocus();
}

} // namespace kiv::ui
