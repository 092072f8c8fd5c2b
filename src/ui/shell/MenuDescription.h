#pragma once

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>

namespace kiv::ui {

/// What a person can command, wherever the command is given.
enum class Command {
    None,
    About,
    CheckUpdates,
    OpenSettings,
    LogOut,
    ShowSignIn,
    ShowSignUp,
    Hide,
    HideOthers,
    ShowAll,
    Quit,
    NewChat,
    CloseWindow,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    SelectAll,
    FocusAsk,
    ToggleRail,
    ToggleDock,
    ToggleHistory,
    FullScreen,
    GoOverseer,
    ToggleCall,
    Minimize,
    Zoom,
    NewProject,
    NewAgent,
};

/// Whether a command is one of the field that has the focus, by keys of its own.
inline bool isEditing(Command command) {
    return command >= Command::Undo && command <= Command::SelectAll;
}

/// Whether a command is about the window or the program as a whole, whatever shows in it.
inline bool isOfWindow(Command command) {
    switch (command) {
    case Command::Hide:
    case Command::HideOthers:
    case Command::ShowAll:
    case Command::Quit:
    case Command::CloseWindow:
    case Command::FullScreen:
    case Command::Minimize:
    case Command::Zoom:
        return true;
    default:
        return false;
    }
}

/// One line of a menu; a separator has no title.
struct MenuEntry {
    Q_GADGET
    QML_VALUE_TYPE(menuEntry)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int command READ commandNumber)
    Q_PROPERTY(QString keys READ keys)
    Q_PROPERTY(bool afterGap MEMBER afterGap)
    Q_PROPERTY(bool works READ works)
public:
    QString title;
    Command command = Command::None;
    /// As "Ctrl+Shift+L", where Ctrl is the system's command key; the first is the one that shows.
    QStringList shortcuts;

    bool afterGap = false; ///< set where separators are left out

    /// The shortcut as people read it, empty without one.
    QString keys() const;
    bool separator() const { return title.isEmpty(); }
    bool works() const { return command != Command::None; }
    int commandNumber() const { return static_cast<int>(command); }
    friend bool operator==(const MenuEntry &, const MenuEntry &) = default;
};

/// One menu of the main menu.
struct MenuDescription {
    Q_GADGET
    QML_VALUE_TYPE(menuDescription)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QList<kiv::ui::MenuEntry> lines READ lines)
public:
    QString title;
    QList<MenuEntry> entries;

    /// The entries without the separators.
    QList<MenuEntry> lines() const;
    friend bool operator==(const MenuDescription &, const MenuDescription &) = default;
};

} // namespace kiv::ui
