pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Rail button and word mark over the rail, the scope beside it, panels and person at the right.
FocusScope {
    id: bar

    required property AppStore store
    required property Commands commands
    /// Where the rail ends, or 0 while it is collapsed.
    required property real railWidth
    required property real popoverHeight

    readonly property bool signedIn: store.scope.auth === Store.AuthPhase.SignedIn

    signal shortcutsRequested()

    function toggleMenu() {
        menuButton.toggle()
    }

    implicitHeight: Tokens.topBarHeight
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Window")

    Rectangle {
        anchors.fill: parent
        color: Tokens.rail
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
    IconButton {
        id: railButton

        objectName: "railButton"
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        iconName: "rail"
        text: bar.store.layout.railCollapsed ? qsTr("Show the rail") : qsTr("Hide the rail")
        keys: "Ctrl \\"
        onClicked: bar.store.layout.toggleRail()
    }
    MenuButton {
        id: menuButton

        anchors.left: railButton.right
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        commands: bar.commands
        offline: bar.store.connection.offline
    }
    ScopeButton {
        most: panels.x - x - 12
        x: bar.railWidth > 0 ? bar.railWidth + 24 : menuButton.x + menuButton.width + 24
        anchors.verticalCenter: parent.verticalCenter
        store: bar.store
        popoverHeight: bar.popoverHeight
    }
    Row {
        id: panels

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.signedIn
        spacing: 4

        LatePlace {
            anchors.verticalCenter: parent.verticalCenter
            wanted: bar.store.call.call
            content: CallPill {
                objectName: "callPill"
                call: bar.store.call
            }
        }
        IconButton {
            objectName: "endCallButton"
            anchors.verticalCenter: parent.verticalCenter
            visible: bar.store.call.call
            iconName: "hang"
            color: enabled ? Tokens.dangerText : Tokens.tDisabled
            text: qsTr("Hang up")
            keys: "Ctrl D"
            onClicked: bar.store.call.hangupCall()
        }
        IconButton {
            objectName: "callButton"
            anchors.verticalCenter: parent.verticalCenter
            visible: !bar.store.call.call
            iconName: "phone"
            text: qsTr("Call")
            keys: "Ctrl D"
            onClicked: bar.store.call.callAction()
        }
        IconButton {
            objectName: "historyButton"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "history"
            text: qsTr("History")
            keys: "Ctrl Y"
            active: bar.store.layout.histOpen
            onClicked: bar.store.layout.toggleHist()

            PopupPlace {
                most: bar.popoverHeight
                shown: bar.signedIn && bar.store.layout.histOpen
                Component.onCompleted: setSource("HistoryPopover.qml", { "store": bar.store })
            }
        }
        IconButton {
            objectName: "eventsButton"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "events"
            text: qsTr("Events")
            active: bar.store.layout.eventsOpen
            onClicked: bar.store.layout.toggleEvents()

            PopupPlace {
                most: bar.popoverHeight
                shown: bar.store.layout.eventsOpen
                Component.onCompleted: setSource("EventFeed.qml", { "store": bar.store })
            }
        }
        IconButton {
            objectName: "dockButton"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "dock"
            text: qsTr("Chat dock")
            keys: "Ctrl J"
            active: bar.store.layout.dockOpen
            badge: active ? 0 : bar.store.chat.unseenMsgs
            onClicked: bar.store.layout.toggleDock()
        }
        Item {
            anchors.verticalCenter: parent.verticalCenter
            width: 13
            height: 36

            Rectangle {
                anchors.centerIn: parent
                width: 1
                height: 20
                color: Tokens.line
            }
        }
        BareButton {
            id: person

            objectName: "profileButton"
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 32
            implicitHeight: 36
            text: qsTr("Profile of %1").arg(bar.store.scope.userName)
            onClicked: bar.store.layout.toggleProfile()

            background: Item {
                FocusRing {
                    anchors.margins: 0
                    targetRadius: 12
                    visible: person.visualFocus
                }
            }

            Avatar {
                anchors.centerIn: parent
                initials: bar.store.scope.userInitials
                picture: bar.store.scope.userAvatarURL
                ground: Tokens.rail
            }
            PopupPlace {
                most: bar.popoverHeight
                shown: bar.store.layout.profileOpen
                Component.onCompleted: setSource("ProfilePopover.qml", { "store": bar.store })
                onLoaded: (item as ProfilePopover).shortcutsRequested.connect(bar.shortcutsRequested)
            }
        }
    }
    Button {
        objectName: "signInButton"
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.store.scope.auth === Store.AuthPhase.Anon
        kind: Button.Main
        size: Button.Small
        text: qsTr("Sign in")
        onClicked: bar.store.session.openAuthSheet(Store.AuthSheetMode.Login)
    }
}
