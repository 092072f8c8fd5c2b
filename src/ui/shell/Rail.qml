import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Projects and agents above, the compact conversation and the ask bar below.
FocusScope {
    id: rail

    required property AppStore store
    /// What the conversation can begin with.
    property list<string> starters
    property alias composer: composer
    property alias feed: feed

    readonly property bool signedIn: store.scope.auth === Store.AuthPhase.SignedIn
    readonly property LayoutRoom layout: store.layout
    readonly property real listHeight: Math.min(height * layout.navigatorShare, navigator.contentHeight + 20)

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Rail")

    Rectangle {
        anchors.fill: parent
        color: Tokens.rail
    }
    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: Tokens.line
    }
    Navigator {
        id: navigator

        visible: rail.signedIn
        width: parent.width - 1
        height: rail.listHeight
        scope: rail.store.scope
        offline: rail.store.connection.offline
        onCreateRequested: kind => rail.store.layout.startCreate(kind)
        onSearchRequested: typed => {
            finder.active = true;
            (finder.item as ScopePopover).typed = typed
            rail.layout.toggleScope()
        }
    }
    Item {
        x: 12
        y: 12
        width: parent.width - 25
        height: 48

        PopupPlace {
            id: finder

            most: rail.height * 0.7
            shown: rail.layout.scopeOpen && rail.visible
            Component.onCompleted: setSource("ScopePopover.qml", { "store": rail.store })
        }
    }
    RailSkeleton {
        visible: rail.store.scope.auth === Store.AuthPhase.Unknown
    }
    RailSamples {
        id: samples

        visible: rail.store.scope.auth === Store.AuthPhase.Anon
        width: parent.width - 1
        onSignInRequested: rail.store.session.openAuthSheet(Store.AuthSheetMode.Login)
    }
    EdgeHandle {
        id: split

        objectName: "navigatorEdge"
        y: rail.listHeight
        visible: rail.signedIn
        width: parent.width - 1
        height: 9
        level: true
        gripped: true
        name: qsTr("Height of the list of projects and agents")
        value: rail.listHeight
        from: Math.min(rail.height * rail.layout.leastNavigatorShare, value)
        to: rail.height * rail.layout.mostNavigatorShare
        onDragged: place => rail.layout.dragNavigator(place / rail.height)
        onSized: size => rail.layout.dragNavigator(size / rail.height)
        onResetRequested: rail.layout.resetNavigator()

        Divider {
            z: -1
            width: parent.width
        }
    }
    Item {
        id: head

        anchors.top: split.bottom
        visible: rail.signedIn
        width: parent.width - 1
        height: Tokens.fit(36)

        Label {
            x: 22
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: qsTr("Conversation")
            Accessible.role: Accessible.Heading
        }
        IconButton {
            x: parent.width - width - 8
            anchors.verticalCenter: parent.verticalCenter
            size: 28
            iconSize: 16
            iconName: "dock"
            text: qsTr("Open the full conversation")
            keys: "Ctrl J"
            onClicked: rail.layout.toggleDock()
        }
    }
    Feed {
        id: feed

        anchors.top: rail.signedIn ? head.bottom : samples.bottom
        anchors.bottom: composer.top
        width: parent.width - 1
        messages: rail.store.chat.feedMsgs
        scope: rail.store.scope
        calendar: rail.store.calendar
        unreadFrom: rail.store.chat.unreadFrom
        compact: true
        offline: rail.store.connection.offline
        starters: rail.starters
        hasOlder: rail.store.chat.feedMsgs.hasOlder
        onOlderRequested: rail.layout.toggleDock()
        onTopReached: rail.store.chat.showOlder()
        onAsked: question => rail.store.chat.send(question)
        onRetryRequested: messageId => rail.store.chat.retry(messageId)
        onAskAgainRequested: messageId => rail.store.chat.askAgain(messageId)
        onSceneRequested: messageId => rail.store.canvas.showMessageCanvas(messageId)
        onChipPicked: (messageId, chip) => rail.store.chat.pickChip(messageId, chip)
        onCallToggled: callId => rail.store.call.toggleCallLines(callId)
        onEditRequested: messageId => {
            rail.store.chat.edit(messageId)
            composer.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    Composer {
        id: composer

        focus: true
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        x: 12
        width: parent.width - 25
        store: rail.store
        note: qsTr("Enter to send, Shift+Enter for a new line")
    }
}
