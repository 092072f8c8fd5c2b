#include "ui/shell/MenuDescription.h"

#include <QKeySequence>

namespace kiv::ui {

QString MenuEntry::keys() const {
    if (shortcuts.isEmpty())
        return {};
    return QKeySequence(shortcuts.first()).toString(QKeySequence::NativeText).replace(u'+', u' ');
}

QList<MenuEntry> MenuDescription::lines() const {
    QList<MenuEntry> found;
    bool gap = false;
    for (const MenuEntry &entry : entries) {
        if (!entry.separator()) {
            found.append(entry);
            found.last().afterGap = gap;
        }
        gap = entry.separator();
    }
    return found;
}

} // namespace kiv::ui
