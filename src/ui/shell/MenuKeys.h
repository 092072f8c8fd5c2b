#pragma once

#include "ui/shell/Commands.h"

#include <QHash>
#include <QQuickWindow>

class QKeyEvent;

namespace kiv::ui {

/// The keys of the main menu. They win over fields that know the same keys as editing keys, such
/// as Ctrl+K. While a dialog waits for an answer, only those of the window and the program count.
class MenuKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::ui::Commands *commands READ commands WRITE setCommands REQUIRED)
    /// The window whose keys these are.
    Q_PROPERTY(QQuickWindow *window MEMBER m_window)
    /// Whether the dialog that waits is the one for signing in, whose own keys lead from its one
    /// side to the other.
    Q_PROPERTY(bool signingIn MEMBER m_signingIn)
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
    QQuickWindow *m_window = nullptr;
    bool m_signingIn = false;
};

} // namespace kiv::ui
