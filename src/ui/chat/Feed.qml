pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// A conversation: newest at the end, which the view follows while the person is near it.
FocusScope {
    id: feed

    required property QtObject rows
    required property ScopeRoom scope
    required property bool compact
    property bool hasOlder: false

    signal retryRequested(messageId: string)
    signal sceneRequested(messageId: string)
    signal olderRequested()
    signal chipPicked(messageId: string, chip: replyChip)
    signal editRequested(messageId: string)

    property string flashed: ""

    /// Brings a message into view and flashes its edge once.
    function reveal(messageId: string): bool {
        flashed = ""
        flashed = messageId
        return follower.reveal(messageId)
    }

    readonly property int side: compact ? 16 : 24
    readonly property real column: Math.min(width - 2 * side, 720)

    ListView {
        id: list

        objectName: feed.compact ? "compactFeed" : "dockFeed"
        anchors.fill: parent
        model: feed.rows
        reuseItems: true
        clip: true
        cacheBuffer: 400
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        topMargin: feed.compact ? 4 : 20
        bottomMargin: 12
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Conversation")
        Keys.onUpPressed: flick(0, 900)
        Keys.onDownPressed: flick(0, -900)

        T.ScrollBar.vertical: ScrollBar {
            id: bar
        }

        delegate: MessageDelegate {
            required property int index

            x: Math.round((list.width - width) / 2)
            width: feed.column
            scope: feed.scope
            compact: feed.compact
            first: index === 0
            flashing: messageId === feed.flashed
            olderBefore: index === 0 && feed.hasOlder
            onOlderRequested: feed.olderRequested()
            onRetryRequested: feed.retryRequested(messageId)
            onSceneRequested: feed.sceneRequested(messageId)
            onChipPicked: chip => feed.chipPicked(messageId, chip)
            onEditRequested: feed.editRequested(messageId)
        }
    }
    EndFollower {
        id: follower

        view: list
        bottomUp: feed.compact
        held: list.moving || bar.pressed
        distance: Tokens.followDistance
    }
    FocusRing {
        anchors.margins: 2
        visible: list.activeFocus
        targetRadius: 0
    }
    T.Button {
        id: latest

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        implicitWidth: 36
        implicitHeight: 36
        visible: !follower.following
        text: qsTr("Jump to latest")
        Accessible.name: text
        onClicked: follower.jump()

        background: Rectangle {
            radius: 18
            color: latest.hovered ? Tokens.hover : Tokens.surface
            border.width: 1
            border.color: Tokens.line2

            FocusRing {
                visible: latest.visualFocus
                targetRadius: 18
            }
        }

        Icon {
            anchors.centerIn: parent
            name: "down"
            color: Tokens.t2
        }
    }
}
