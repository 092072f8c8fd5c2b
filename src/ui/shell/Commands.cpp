#include "ui/shell/Commands.h"

#include "base/AppVersion.h"

namespace kiv::ui {

using namespace Qt::StringLiterals;

namespace {

QList<MenuEntry> withKeys(const QList<MenuDescription> &menus) {
    QList<MenuEntry> found;
    for (const MenuDescription &menu : menus) {
        for (const MenuEntry &entry : menu.entries) {
            if (!entry.shortcuts.isEmpty())
                found.append(entry);
        }
    }
    return found;
}

} // namespace

QString Commands::version() {
    return AppVersion::running().display();
}

QList<MenuEntry> Commands::bound() const {
    QList<MenuEntry> found = withKeys(menus());
    found.removeIf([](const MenuEntry &entry) { return isEditing(entry.command); });
    return found;
}

QList<MenuEntry> Commands::everyKey() const {
    const auto beside = [](const QString &title, const QString &keys) {
        return MenuEntry{.title = title, .shortcuts = {keys}};
    };
    return withKeys(menus()) + QList<MenuEntry>{
                                   beside(tr("Command palette"), u"Ctrl+Shift+P"_s),
                                   beside(tr("Main menu"), u"F10"_s),
                                   beside(tr("Find in the conversation"), u"Ctrl+F"_s),
                                   beside(tr("Next match"), u"F3"_s),
                                   beside(tr("Previous match"), u"Shift+F3"_s),
                                   beside(tr("Export the picture"), u"Ctrl+E"_s),
                                   beside(tr("The canvas alone"), u"Ctrl+Shift+F"_s),
                                   beside(tr("Earlier canvas"), u"Alt+Left"_s),
                                   beside(tr("Later canvas"), u"Alt+Right"_s),
                                   beside(tr("Next area of the window"), u"F6"_s),
                                   beside(tr("Larger text"), u"Ctrl++"_s),
                                   beside(tr("Smaller text"), u"Ctrl+-"_s),
                                   beside(tr("Send"), u"Return"_s),
                                   beside(tr("New line"), u"Shift+Return"_s),
                                   beside(tr("Last message again, in an empty field"), u"Up"_s),
                                   beside(tr("Close what is on top, or stop the answer"), u"Esc"_s),
                               };
}

} // namespace kiv::ui
