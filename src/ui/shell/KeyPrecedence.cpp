#include "ui/shell/KeyPrecedence.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>

namespace kiv::ui {

namespace {

bool edits(Command command) {
    return command >= Command::Undo && command <= Command::SelectAll;
}

bool has(const MenuEntry &entry, const QKeySequence &keys) {
    return std::any_of(entry.shortcuts.begin(), entry.shortcuts.end(),
                       [&](const QString &shortcut) { return QKeySequence(shortcut) == keys; });
}

} // namespace

KeyPrecedence::KeyPrecedence(QObject *parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyPrecedence::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::ShortcutOverride || !m_commands)
        return QObject::eventFilter(watched, event);
    const QKeySequence keys(static_cast<QKeyEvent *>(event)->keyCombination());
    const QList<MenuEntry> bound = m_commands->bound();
    const bool commanded = std::any_of(bound.begin(), bound.end(), [&](const MenuEntry &entry) {
        return !edits(entry.command) && has(entry, keys);
    });
    if (!commanded)
        return QObject::eventFilter(watched, event);
    // Nobody claims the keys, so they go to the shortcut.
    event->ignore();
    return true;
}

} // namespace kiv::ui
