#pragma once

#include "ui/shell/Commands.h"

#include <QHash>
#include <QWindow>

class QKeyEvent;

namespace kiv::ui {

/// The keys of the main menu. They win over fields that know the same keys as editing keys, such
/// as Ctrl+K.
class MenuKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::ui::Commands *commands READ commands WRITE setCommands REQUIRED)
    /// The window whose keys these are.
    Q_PROPERTY(QWindow *window MEMBER m_window)
public:
    explicit MenuKeys(QObject *parent = nullptr);

    Commands *commands() const { return m_commands; }
    void setCommands(Commands *commands);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Takes the keys of the menu as it is now: they are looked up at every press.
    void learn();
    /// The command that the keys give; None for others.
    Command commandOf(const QKeyEvent &event) const;

    Commands *m_commands = nullptr;
    QHash<QKeyCombination, Command> m_keys;
    QWindow *m_window = nullptr;
};

} // namespace kiv::ui
