#pragma once

#include "ui/shell/Commands.h"

namespace kiv::ui {

/// Lets the shortcuts of the menu win over fields that know the same keys as editing keys, such as
/// Ctrl+K. Only the commands that edit stay with the field.
class KeyPrecedence : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kiv::ui::Commands *commands MEMBER m_commands REQUIRED)
public:
    explicit KeyPrecedence(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Commands *m_commands = nullptr;
};

} // namespace kiv::ui
