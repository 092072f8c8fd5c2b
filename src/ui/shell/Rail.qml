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
    property alias composer: composer
    property alias feed: feed
    /// The part of the height that the list may take; the person drags it.
    property real share: 0.55

    readonly property bool signedIn: store.scope.auth === Store.AuthPhase.SignedIn
    readonly property real listHeight: Math.min(height * share, navigator.contentHeight + 20)

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
        onCreateRequested: kind => rail.store.layout.startCreate(kind)
    }
    RailSkeleton {
        visible: !rail.signedIn
    }
    Item {
        id: split

        y: rail.listHeight
        visible: rail.signedIn
        width: parent.width - 1
        height: 9

        Divider {
            width: parent.width
        }
        Rectangle {
            anchors.centerIn: parent
            width: 32
            height: 3
            radius: 2
            color: grip.pressed ? Tokens.accent : Tokens.line2
        }
        MouseArea {
            id: grip

            anchors.fill: parent
            cursorShape: Qt.SplitVCursor
            preventStealing: true
            onPositionChanged: mouse => rail.share = Math.max(0.15, Math.min(0.55, (split.y + mouse.y) / rail.height))
        }
    }
    Item {
        id: head

        anchors.top: split.bottom
        visible: rail.signedIn
        width: parent.width - 1
        height: 36

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
            onClicked: rail.store.layout.toggleDock()
        }
    }
    Feed {
        id: feed

        anchors.top: rail.signedIn ? head.bottom : parent.top
        anchors.topMargin: rail.signedIn ? 0 : 220
        anchors.bottom: composer.top
        width: parent.width - 1
        messages: rail.store.chat.feedMsgs
        scope: rail.store.scope
        calendar: rail.store.calendar
        unreadFrom: rail.store.chat.unreadFrom
        compact: true
        hasOlder: rail.store.chat.feedMsgs.hasOlder
        onOlderRequested: rail.store.layout.toggleDock()
        onTopReached: rail.store.chat.showOlder()
        onRetryRequested: messageId => rail.store.chat.retry(messageId)
        onAskAgainRequested: messageId => rail.store.chat.askAgain(messageId)
        onSceneRequested: messageId => rail.store.canvas.showMessageCanvas(messageId)
        onChipPicked: (messageId, chip) => rail.store.chat.pickChip(messageId, chip)
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
