import QtQuick
import Kiv.Chat
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// The chat dock at the right edge of its parent: slides in when it is opened, and is gone while it is
// closed.
Loader {
    id: place

    required property AppStore store

    /// 1 when the dock is all in, 0 when it is out.
    property real shown: store.layout.dockOpen ? 1 : 0

    x: parent.width - width * shown
    width: store.layout.shownDockW
    height: parent.height
    active: shown > 0
    onLoaded: (item as ChatDock).forceActiveFocus(Qt.OtherFocusReason)

    Behavior on shown {
        NumberAnimation {
            duration: place.store.layout.dockOpen ? Tokens.slide : Tokens.base
            easing.type: place.store.layout.dockOpen ? Easing.OutQuint : Easing.InCubic
        }
    }
    sourceComponent: ChatDock {
        id: dock

        store: (parent as DockLoader)?.store

        EdgeHandle {
            x: -width / 2
            height: parent.height
            gripped: true
            onDragged: place => dock.store.layout.dragDock(dock.width - place)
        }
    }
}
