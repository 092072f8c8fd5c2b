#include "ui/controls/FocusReturn.h"

#include <QGuiApplication>

namespace kiv::ui {

void FocusReturn::remember() {
    m_window = qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow());
    m_item = m_window ? m_window->activeFocusItem() : nullptr;
}

void FocusReturn::giveBack() {
    if (!m_window || !m_item || !m_item->isVisible())
        return;
    const QQuickItem *current = m_window->activeFocusItem();
    if (!current || current == m_window->contentItem())
        m_item->forceActiveFocus(Qt::PopupFocusReason);
}

} // namespace kiv::ui
