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
    property list<string> starters

    /// The message that the dock shows once it is there.
    property string wanted: ""
    /// 1 when the dock is all in, 0 when it is out.
    property real shown: store.layout.dockOpen ? 1 : 0

    /// Shows a message, in a dock that opens for it.
    function reveal(messageId: string) {
        wanted = messageId
        if (store.layout.dockOpen)
            (item as ChatDock)?.feed.reveal(messageId)
        else
            store.layout.toggleDock()
    }

    x: parent.width - width * shown
    width: store.layout.shownDockW
    height: parent.height
    active: shown > 0
    onLoaded: {
        const dock = item as ChatDock
        dock.forceActiveFocus(Qt.OtherFocusReason)
        if (wanted !== "")
            dock.feed.reveal(wanted)
        wanted = ""
    }

    sourceComponent: ChatDock {
        id: dock

        store: (parent as DockLoader)?.store
        starters: (parent as DockLoader)?.starters ?? []

        EdgeHandle {
            x: -width / 2
            height: parent.height
            objectName: "dockEdge"
            gripped: true
            mirrored: true
            name: qsTr("Width of the chat dock")
            value: dock.store.layout.shownDockW
            from: dock.store.layout.leastDockW
            to: dock.store.layout.mostDockW
            onDragged: place => dock.store.layout.dragDock(dock.width - place)
            onSized: size => dock.store.layout.dragDock(size)
            onResetRequested: dock.store.layout.resetDock()
        }
    }

    Behavior on shown {
        NumberAnimation {
            duration: place.store.layout.dockOpen ? Tokens.slide : Tokens.base
            easing.type: place.store.layout.dockOpen ? Easing.OutQuint : Easing.InCubic
        }
    }
}
