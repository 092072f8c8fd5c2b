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

void MenuKeys::setCommands(Commands *commands) {
    if (m_commands)
        m_commands->disconnect(this);
    m_commands = commands;
    if (commands)
        connect(commands, &Commands::menusChanged, this, &MenuKeys::learn);
    learn();
}

void MenuKeys::learn() {
    m_keys.clear();
    const QList<MenuEntry> bound = m_commands ? m_commands->bound() : QList<MenuEntry>();
    for (const MenuEntry &entry : bound) {
        for (const QString &shortcut : entry.shortcuts)
            m_keys.insert(QKeySequence(shortcut)[0], entry.command);
    }
}

Command MenuKeys::commandOf(const QKeyEvent &event) const {
    if (!m_window || QGuiApplication::focusWindow() != m_window)
        return Command::None;
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    return m_keys.value(QKeyCombination(modifiers, Qt::Key(event.key())), Command::None);
}

} // namespace kiv::ui
