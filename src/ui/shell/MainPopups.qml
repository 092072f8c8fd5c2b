import QtQuick
import Kiv.Controls
import Kiv.Shell
import Kiv.Store

// What opens over the window by a command: the palette, the shortcuts, what the program is.
Item {
    id: popups

    required property AppStore store
    required property Commands commands

    function showShortcuts() {
        shortcuts.open()
    }

    PopupPlace {
        id: about

        Component.onCompleted: setSource("AboutDialog.qml", { "commands": popups.commands })
        onLoaded: (item as AboutDialog).noticesRequested.connect(notices.open)
    }
    PopupPlace {
        id: notices

        source: "NoticesSheet.qml"
    }
    PopupPlace {
        id: shortcuts

        Component.onCompleted: setSource("ShortcutsSheet.qml", { "commands": popups.commands })
    }
    PopupPlace {
        id: palette

        Component.onCompleted: setSource("CommandPalette.qml", { "store": popups.store, "commands": popups.commands })
        onLoaded: (item as CommandPalette).shortcutsRequested.connect(shortcuts.open)
    }
    Connections {
        target: popups.commands

        function onAboutRequested() {
            about.open()
        }
    }
    Shortcut {
        sequence: "Ctrl+Shift+P"
        onActivated: palette.toggle()
    }
}
