import QtQuick
import Kiv.Canvas
import Kiv.Chat
import Kiv.Controls
import Kiv.Markdown
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Everything in the window: top bar, rail or strip, canvas, and what floats over it.
FocusScope {
    id: view

    required property AppStore store

    readonly property LayoutRoom layout: store.layout
    readonly property bool floats: !layout.railShown && !layout.dockOpen
    readonly property real side: layout.railShown ? layout.shownRailW : Tokens.stripWidth

    /// Puts the cursor into the ask bar that shows.
    function focusAsk() {
        const bar = layout.dockOpen ? dockLoader.item : layout.railShown ? rail.composer : floating
        bar?.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    /// Shows the message that a scene came from, in the feed that shows or in the dock.
    function reveal(messageId: string) {
        if (!view.layout.dockOpen && view.layout.railShown && rail.feed.reveal(messageId))
            return
        dockLoader.reveal(messageId)
    }

    focus: true
    onWidthChanged: layout.setWindowWidth(width)
    Component.onCompleted: layout.setWindowWidth(width)

    Rectangle {
        anchors.fill: parent
        color: Tokens.bg
    }
    TopBar {
        id: topBar

        width: parent.width
        store: view.store
        railWidth: view.layout.railShown ? view.layout.shownRailW : 0
        popoverHeight: view.height * 0.7
    }
    Banner {
        id: banner

        anchors.top: topBar.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: view.store.connection.offline
        iconName: "offline"
        text: qsTr("You are offline. What you send waits for the connection.")
        action: qsTr("Retry now")
        onActed: view.store.connection.retryNow()
    }
    Rail {
        id: rail

        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        visible: view.layout.railShown
        width: view.layout.shownRailW
        focus: true
        store: view.store
    }
    Strip {
        id: strip

        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        visible: !view.layout.railShown
        scope: view.store.scope
    }
    EdgeHandle {
        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        x: view.layout.shownRailW - width / 2
        visible: view.layout.railShown
        onDragged: place => view.layout.dragRail(place)
        onResetRequested: view.layout.resetRail()
    }
    FocusScope {
        id: stage

        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        x: view.side
        width: parent.width - x

        CanvasView {
            anchors.fill: parent
            focus: true
            store: view.store
            reserved: view.floats ? floating.height + 16 : 0
            onMessageRequested: messageId => view.reveal(messageId)
        }
        Composer {
            id: floating

            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(720, parent.width - 48)
            visible: view.floats
            floating: true
            store: view.store
        }
    }
    Item {
        id: dockPlace

        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
        visible: dockLoader.active

        DockLoader {
            id: dockLoader

            store: view.store
        }
    }
    SignInSheet {
        session: view.store.session
    }
    Connections {
        target: LinkOpener

        function onFollowed(link) {
            const elsewhere = "" + view.store.canvas.openLink(link)
            if (elsewhere !== "")
                Qt.openUrlExternally(elsewhere)
        }
    }
    AreaCycle {
        id: areas

        areas: [topBar, banner, view.layout.railShown ? rail : strip, stage, dockPlace]
    }
    Shortcut {
        sequence: "Ctrl+K"
        onActivated: view.focusAsk()
    }
    Shortcut {
        sequence: "Ctrl+J"
        onActivated: view.layout.toggleDock()
    }
    Shortcut {
        sequence: "Ctrl+\\"
        onActivated: view.layout.toggleRail()
    }
    Shortcut {
        sequence: "F6"
        onActivated: areas.next()
    }
}
