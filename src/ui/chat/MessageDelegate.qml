import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// One message of a feed: who and when, the bubble, and the card of the scene that it carries.
Item {
    id: message

    required property string messageId
    required property int who
    required property string body
    required property string rawText
    required property string time
    required property string memberLabel
    required property list<msgFile> files
    required property int delivery
    required property bool growing
    required property string cardTitle
    required property string cardArt
    required property bool onCanvas
    required property list<replyChip> chips

    required property ScopeRoom scope
    required property bool compact
    required property bool first
    property bool olderBefore: false
    property bool flashing: false

    signal olderRequested()
    signal retryRequested()
    signal sceneRequested()
    signal chipPicked(chip: replyChip)
    signal editRequested()

    readonly property bool mine: who === Store.Who.You
    readonly property bool failed: delivery === Store.Delivery.Failed
    readonly property int indent: compact || mine ? 0 : 40

    implicitHeight: column.y + column.height

    HoverHandler {
        id: pointer
    }
    Column {
        id: column

        y: message.first ? 0 : message.compact ? 16 : 20
        width: message.width
        spacing: 6

        TextLink {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: message.olderBefore
            bottomPadding: 10
            color: hovered ? Tokens.t1 : Tokens.t3
            text: qsTr("Open the full conversation")
            onClicked: message.olderRequested()
        }
        Row {
            visible: !message.mine
            spacing: message.compact ? 8 : 12

            Figure {
                kind: message.scope.scopeKind
                name: message.scope.scopeName
                colorHex: message.scope.scopeColorHex
                size: message.compact ? 20 : 28
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.smallStrong
                text: message.scope.scopeName
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                style: Tokens.type.caption
                tabular: true
                color: Tokens.t3
                text: message.time
            }
            Chip {
                anchors.verticalCenter: parent.verticalCenter
                visible: message.memberLabel !== ""
                height: 20
                text: qsTr("with %1").arg(message.memberLabel)
            }
        }
        MessageFiles {
            width: message.mine ? message.width : message.width - message.indent
            x: message.indent
            visible: message.files.length > 0
            layoutDirection: message.mine ? Qt.RightToLeft : Qt.LeftToRight
            files: message.files
        }
        Bubble {
            id: bubble

            objectName: message.mine ? "mine" : ""
            x: message.mine ? message.width - width : message.indent
            visible: message.body !== "" || message.growing
            mine: message.mine
            compact: message.compact
            body: message.body
            growing: message.growing
            failed: message.failed
            flashing: message.flashing
            opacity: message.delivery === Store.Delivery.Pending ? 0.75 : 1
            maximumWidth: message.mine ? message.width * 0.84 : message.width - message.indent
        }
        CanvasCard {
            x: message.indent
            width: message.width - x
            visible: message.cardArt !== ""
            title: message.cardTitle
            art: message.cardArt
            shown: message.onCanvas
            onClicked: message.sceneRequested()
        }
        ReplyChips {
            x: message.indent
            width: message.width - x
            chips: message.chips
            onPicked: chip => message.chipPicked(chip)
        }
        TextLink {
            anchors.right: parent.right
            visible: message.failed
            color: Tokens.dangerText
            text: qsTr("Not sent. Try again")
            onClicked: message.retryRequested()
        }
    }
    IconButton {
        x: message.indent - 4
        y: message.height - 4
        z: 1
        visible: !message.compact && !message.mine && !message.growing && pointer.hovered && message.rawText !== ""
        size: 28
        iconSize: 16
        iconName: "copy"
        text: qsTr("Copy the message")
        onClicked: Clipboard.setText(message.rawText)
    }
    IconButton {
        objectName: "editButton"
        x: bubble.x - width - 4
        y: column.y + bubble.y + (bubble.height - height) / 2
        visible: message.mine && message.delivery !== Store.Delivery.Pending && pointer.hovered
        size: 28
        iconSize: 16
        iconName: "edit"
        text: qsTr("Edit")
        onClicked: message.editRequested()
    }
}
