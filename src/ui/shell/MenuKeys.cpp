#include "ui/shell/MenuKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace kiv::ui {

MenuKeys::MenuKeys(QObject *parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event) {
    const bool isAsked = event->type() == QEvent::ShortcutOverride;
    if (!isAsked && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const Command command = commandOf(*key);
    if (command == Command::None)
        return QObject::eventFilter(watched, event);
    // Taken before the field is asked whether it wants the keys; the press itself follows.
    event->accept();
    if (!isAsked && !key->isAutoRepeat())
        m_commands->perform(command);
    return true;
}

Command MenuKeys::commandOf(const QKeyEvent &event) const {
    if (!m_commands || !m_window || QGuiApplication::focusWindow() != m_window)
        return Command::None;
    const QKeySequence keys(
        QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key())));
    const QList<MenuEntry> bound = m_commands->bound();
    for (const MenuEntry &entry : bound) {
        for (const QString &shortcut : entry.shortcuts) {
            if (QKeySequence(shortcut) == keys)
                return entry.command;
        }
    }
    return Command::None;
}

} // namespace kiv::ui
