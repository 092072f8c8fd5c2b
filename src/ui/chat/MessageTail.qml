pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// What goes with a message: the card of its scene, that it was not sent, and what can be done with it.
FocusScope {
    id: tail

    required property feedRow row
    required property bool compact
    property bool hovered: false
    readonly property int indent: compact || row.mine ? 0 : 40
    readonly property bool hasCard: row.cardArt !== ""
    /// The narrow feed has little room to bring them into sight: there the message's menu has them for the keys.
    readonly property int byKey: compact ? Qt.NoFocus : Qt.StrongFocus
    readonly property bool failed: row.delivery === Store.Delivery.Failed

    signal retryRequested()
    signal sceneRequested()
    signal copyRequested()
    signal askAgainRequested()
    signal chipPicked(chip: replyChip)

    implicitHeight: (hasCard ? 6 + card.height : 0) + (replies.visible ? 6 + replies.height : 0)
        + (failed ? 6 + again.height : 0)
    z: 1

    CanvasCard {
        id: card

        x: tail.indent
        y: 6
        width: tail.width - x
        visible: tail.hasCard
        title: tail.row.cardTitle
        art: tail.row.cardArt
        shown: tail.row.onCanvas
        onClicked: tail.sceneRequested()
    }
    ReplyChips {
        id: replies

        x: tail.indent
        y: (tail.hasCard ? 6 + card.height : 0) + 6
        width: tail.width - x
        chips: tail.row.chips
        onPicked: chip => tail.chipPicked(chip)
    }
    TextLink {
        id: again

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: tail.failed
        color: Tokens.dangerText
        text: qsTr("Not sent. Try again")
        onClicked: tail.retryRequested()
    }
    Icon {
        anchors.right: sent.left
        anchors.rightMargin: 6
        anchors.verticalCenter: sent.verticalCenter
        visible: tail.row.mine && tail.row.fromCall
        name: "phone"
        size: 14
        color: Tokens.t3
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("said in a call")
    }
    Label {
        id: sent

        objectName: "sentState"
        anchors.right: parent.right
        y: tail.height
        visible: tail.row.mine && !tail.failed
        style: tail.compact ? Tokens.type.micro : Tokens.type.caption
        tabular: true
        color: Tokens.t3
        text: tail.row.delivery === Store.Delivery.Pending ? qsTr("Sending…")
            : tail.hovered && !tail.row.fromCall ? qsTr("Sent %1").arg(tail.row.time) : tail.row.time
    }
    LatePlace {
        x: tail.indent - 4
        y: tail.height - 4
        wanted: !tail.row.mine && !tail.row.growing && (tail.hovered || over.hovered)
        content: Row {
            IconButton {
                objectName: "copyMessage"
                focusPolicy: tail.byKey
                size: 28
                iconSize: 16
                iconName: "copy"
                text: qsTr("Copy the message")
                onClicked: tail.copyRequested()
            }
            IconButton {
                objectName: "showOnCanvas"
                visible: tail.hasCard && !tail.row.onCanvas
                focusPolicy: tail.byKey
                size: 28
                iconSize: 16
                iconName: "layers"
                text: qsTr("Show on the canvas")
                onClicked: tail.sceneRequested()
            }
            IconButton {
                objectName: "askAgain"
                visible: !tail.row.fromCall
                focusPolicy: tail.byKey
                size: 28
                iconSize: 16
                iconName: "refresh"
                text: qsTr("Ask again")
                onClicked: tail.askAgainRequested()
            }
        }

        HoverHandler {
            id: over
        }
    }
}
