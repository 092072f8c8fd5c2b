#pragma once

#include "ui/shell/MenuDescription.h"

namespace kiv::ui {

/// The main menu and what carries out its commands. The program implements it.
class Commands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QList<kiv::ui::MenuDescription> menus READ menus NOTIFY menusChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QList<kiv::ui::MenuEntry> everyKey READ everyKey NOTIFY menusChanged)
public:
    using QObject::QObject;

    virtual QList<MenuDescription> menus() const = 0;
    virtual void perform(Command command) = 0;
    /// The same for the views, by the number that an entry of the menu gives.
    Q_INVOKABLE void performNumber(int command) { perform(static_cast<Command>(command)); }

    /// What somebody needs to know who looks for a fault, as text to be sent to them.
    Q_INVOKABLE virtual QString diagnostics() const = 0;

    /// The version of the program, for people.
    static QString version();
    /// The entries whose keys the window takes, of all menus. Keys that edit are the fields' own.
    QList<MenuEntry> bound() const;
    /// Every entry that has keys, and the keys that the window knows beside the menu.
    QList<MenuEntry> everyKey() const;

Q_SIGNALS:
    void menusChanged();
    void aboutRequested();
};

} // namespace kiv::ui
