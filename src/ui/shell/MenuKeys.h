#pragma once

#include "ui/shell/Commands.h"

#include <QWindow>

class QKeyEvent;

namespace kiv::ui {

/// The keys of the main menu. They win over fields that know the same keys as editing keys, such
/// as Ctrl+K.
class MenuKeys : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::ui::Commands *commands MEMBER m_commands REQUIRED)
    /// The window whose keys these are.
    Q_PROPERTY(QWindow *window MEMBER m_window)
public:
    explicit MenuKeys(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The command that the keys give; None for others.
    Command commandOf(const QKeyEvent &event) const;

    Commands *m_commands = nullptr;
    QWindow *m_window = nullptr;
};

} // namespace kiv::ui
