#include "ui/shell/Commands.h"

#include "base/AppVersion.h"

namespace kiv::ui {

QString Commands::version() {
    return AppVersion::running().display();
}

QList<MenuEntry> Commands::bound() const {
    QList<MenuEntry> found;
    const QList<MenuDescription> all = menus();
    for (const MenuDescription &menu : all) {
        for (const MenuEntry &entry : menu.entries) {
            if (!entry.shortcuts.isEmpty())
                found.append(entry);
        }
    }
    return found;
}

} // namespace kiv::ui
