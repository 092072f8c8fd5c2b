pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Account
import Kiv.Canvas
import Kiv.Chat
import Kiv.Controls
import Kiv.Create
import Kiv.Markdown
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Everything in the window: top bar, rail or strip, canvas, and what floats over it.
FocusScope {
    id: view

    required property AppStore store
    required property Commands commands

    readonly property LayoutRoom layout: store.layout
    /// Whether the canvas has the window for itself.
    readonly property bool full: sole.active
    readonly property bool railShown: layout.railShown && !full
    readonly property bool accountOpen: layout.account !== ""
    readonly property bool floats: !layout.railShown && !layout.dockOpen && !full && !accountOpen
    readonly property real side: full ? 0 : layout.railShown ? layout.shownRailW : Tokens.stripWidth

    /// Whether nobody has said anything yet.
    readonly property bool fresh: store.chat.msgs.count < 2 && !store.chat.historyLoading

    /// What had the keys has gone out of sight.
    readonly property bool astray: Window.activeFocusItem !== null && !Window.activeFocusItem.visible

    /// Puts the cursor into the ask bar that shows.
    function focusAsk() {
        layout.leaveCanvasFull()
        const bar = layout.dockOpen ? dockLoader.item : layout.railShown ? rail.composer : floating
        bar?.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    function bringKeysBack() {
        if (full || accountOpen)
            stage.nextItemInFocusChain(true).forceActiveFocus(Qt.OtherFocusReason)
        else
            focusAsk()
    }

    /// Shows the message that a scene came from, in the feed that shows or in the dock.
    function reveal(messageId: string) {
        layout.leaveCanvasFull()
        if (!view.layout.dockOpen && view.layout.railShown && rail.feed.reveal(messageId))
            return
        dockLoader.reveal(messageId)
    }

    focus: true
    // What lies on top has had the key before: the dock goes, then the answer stops.
    Keys.onEscapePressed: event => {
        event.accepted = layout.dockOpen || store.chat.canStop
        if (layout.dockOpen)
            layout.toggleDock()
        else if (event.accepted)
            store.chat.stopLive()
    }
    // A window that is being made has no width yet.
    onWidthChanged: if (width > 0) layout.setWindowWidth(width)

    Rectangle {
        anchors.fill: parent
        color: Tokens.bg
    }
    TopBar {
        id: topBar

        width: parent.width
        height: visible ? implicitHeight : 0
        visible: !view.full
        store: view.store
        commands: view.commands
        railWidth: view.layout.railShown ? view.layout.shownRailW : 0
        popoverHeight: view.height * 0.7
        onShortcutsRequested: popups.showShortcuts()
    }
    LatePlace {
        id: offlineBanner

        anchors.top: topBar.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        wanted: view.store.connection.offline
        content: Banner {
            anchors.fill: parent
            iconName: "offline"
            text: view.store.connection.serverDown
                ? qsTr("The workspace on this computer has stopped and is being started again. What you send waits for it.")
                : qsTr("You are offline. What you send waits for the connection.")
            action: view.store.connection.serverDown ? "" : qsTr("Retry now")
            onActed: view.store.connection.retryNow()
        }
    }
    LatePlace {
        id: failureBanner

        anchors.top: offlineBanner.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        wanted: view.store.connection.failure !== ""
        content: Banner {
            objectName: "failureBanner"
            anchors.fill: parent
            iconName: "alert"
            text: qsTr("The workspace cannot start: %1").arg(view.store.connection.failure)
            action: qsTr("Try again")
            onActed: view.store.connection.startAgain()
        }
    }
    LatePlace {
        id: storageBanners

        anchors.top: failureBanner.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        wanted: view.store.storage.trouble !== "" || view.store.storage.damage !== ""
        content: StorageBanners {
            width: parent.width
            storage: view.store.storage
        }
    }
    LatePlace {
        id: updateBanner

        anchors.top: storageBanners.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        wanted: view.store.update.offered
        content: Banner {
            anchors.fill: parent
            iconName: "download"
            tone: Tokens.violet
            text: qsTr("KIV %1 is available.").arg(view.store.update.version)
            action: qsTr("Open downloads")
            closable: true
            onActed: Qt.openUrlExternally(view.store.update.page)
            onClosed: view.store.update.dismiss()
        }
    }
    Rail {
        id: rail

        anchors.top: updateBanner.bottom
        anchors.bottom: parent.bottom
        visible: view.railShown
        width: view.layout.shownRailW
        focus: true
        store: view.store
        starters: view.fresh && !view.layout.dockOpen && view.store.canvas.state !== Store.CanvasState.Empty ? view.store.scope.starters : []
    }
    LatePlace {
        id: strip

        anchors.top: updateBanner.bottom
        anchors.bottom: parent.bottom
        wanted: !view.layout.railShown && !view.full
        content: Strip {
            anchors.fill: parent
            focus: true
            scope: view.store.scope
            offline: view.store.connection.offline
            onCreateRequested: kind => view.layout.startCreate(kind)
        }
    }
    EdgeHandle {
        anchors.top: updateBanner.bottom
        anchors.bottom: parent.bottom
        objectName: "railEdge"
        x: view.layout.shownRailW - width / 2
        visible: view.railShown
        name: qsTr("Width of the rail")
        value: view.layout.shownRailW
        from: view.layout.leastRailW
        to: view.layout.mostRailW
        onSized: size => view.layout.dragRail(size)
        onDragged: place => view.layout.dragRail(place)
        onResetRequested: view.layout.resetRail()
    }
    FocusScope {
        id: stage

        anchors.top: updateBanner.bottom
        anchors.bottom: parent.bottom
        x: view.side
        width: parent.width - x
        Keys.onEscapePressed: event => event.accepted = view.layout.leaveCanvasFull()

        CanvasView {
            id: canvasView

            anchors.fill: parent
            focus: !view.accountOpen
            visible: !view.accountOpen
            store: view.store
            reserved: view.floats ? floating.height + 16 : 0
            // An open dock offers them itself.
            starters: view.fresh && view.layout.dockOpen ? [] : view.store.scope.starters
            onMessageRequested: messageId => view.reveal(messageId)
        }
        PanelPlace {
            anchors.fill: parent
            anchors.bottomMargin: canvasView.reserved
            visible: !view.accountOpen
            store: view.store
            onActiveChanged: if (!active) canvasView.focus = true
        }
        AccountLoader {
            anchors.fill: parent
            focus: view.accountOpen
            store: view.store
        }
        LatePlace {
            id: floating

            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(720, parent.width - 48)
            wanted: view.floats
            content: Composer {
                width: parent.width
                focus: true
                floating: true
                store: view.store
            }
        }
    }
    Item {
        id: dockPlace

        anchors.top: updateBanner.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
        visible: dockLoader.active && !view.full

        DockLoader {
            id: dockLoader

            store: view.store
            starters: view.fresh ? view.store.scope.starters : []
        }
    }
    ToastStack {
        readonly property real besideBar: (stage.width - floating.width) / 2

        bottom: 24 + (view.floats && width + 40 > besideBar ? floating.height + 16 : 0)
    }
    Announcement {
        id: answerAlert

        objectName: "answerNews"
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words
    }
    AnswerNews {
        chat: view.store.chat
        name: view.store.scope.scopeName
        onTold: words => answerAlert.say(words)
    }
    PopupPlace {
        shown: view.store.session.authSheet !== Store.AuthSheetMode.Closed
        Component.onCompleted: setSource("SignInSheet.qml", { "store": view.store })
    }
    LeavePlace {
        account: view.store.account
    }
    WizardLoader {
        room: view.store.create
    }
    Connections {
        target: LinkOpener

        function onFollowed(link) {
            const elsewhere = "" + view.store.canvas.openLink(link)
            if (elsewhere !== "")
                Qt.openUrlExternally(elsewhere)
        }
    }
    SoleView {
        id: sole

        area: stage
        wanted: view.layout.canvasFull
    }
    Timer {
        // Not in the midst of a change.
        running: view.astray && view.visible
        interval: 0
        onTriggered: view.bringKeysBack()
    }
    AreaCycle {
        id: areas

        areas: [topBar, offlineBanner, failureBanner, storageBanners, updateBanner, view.layout.railShown ? rail : strip, stage, dockPlace]
    }
    MainPopups {
        id: popups

        anchors.fill: parent
        store: view.store
        commands: view.commands
    }
    MenuKeys {
        commands: view.commands
        window: view.Window.window
        signingIn: view.store.session.authSheet !== Store.AuthSheetMode.Closed
    }
    Connections {
        target: view.store.account

        function onFailedElsewhere(why) {
            Toasts.show(why)
        }
    }
    Connections {
        target: view.store.call

        function onCallHintChanged() {
            if (view.store.call.callHint === "")
                return
            Toasts.show(view.store.call.callHint)
            view.store.call.dismissHint()
        }
        function onCallLinkShared(link) {
            Clipboard.setText(link)
        }
    }
    Connections {
        target: view.layout

        function onFocusAskRequestsChanged() {
            view.focusAsk()
        }
    }
    Shortcut {
        sequence: "F10"
        enabled: view.visible
        onActivated: topBar.toggleMenu()
    }
    Shortcut {
        sequence: "Ctrl+F"
        enabled: view.visible
        onActivated: view.store.find.open()
    }
    Shortcut {
        sequence: "F3"
        enabled: view.visible
        onActivated: view.store.find.next()
    }
    Shortcut {
        sequence: "Shift+F3"
        enabled: view.visible
        onActivated: view.store.find.previous()
    }
    Shortcut {
        sequence: "Ctrl+Shift+F"
        enabled: view.visible && view.store.canvas.framed
        onActivated: view.layout.toggleCanvasFull()
    }
    Shortcut {
        sequences: ["Ctrl++", "Ctrl+="]
        onActivated: view.store.appearance.enlargeText()
    }
    Shortcut {
        sequence: "Ctrl+-"
        onActivated: view.store.appearance.reduceText()
    }
    Shortcut {
        sequence: "F6"
        enabled: view.visible
        onActivated: areas.next()
    }
}
