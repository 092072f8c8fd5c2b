import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Markdown
import Kiv.Store
import Kiv.Tokens

// What the person wrote, as it was written.
Item {
    id: own

    required property feedRow row
    required property bool compact
    property bool flashing: false
    property bool hovered: false
    readonly property int gap: row.first ? (compact ? 16 : 20) : 0
    readonly property int sidePadding: compact ? 12 : 14
    readonly property int margin: compact ? 8 : 10
    readonly property real most: width * 0.84

    signal editRequested()

    implicitHeight: words.y + words.height + (row.last ? margin : 0)
    opacity: row.delivery === Store.Delivery.Pending ? 0.75 : 1

    BubbleSlice {
        id: bubble

        objectName: "mine"
        x: own.width - width
        y: own.gap
        width: own.row.first && own.row.last ? Math.min(own.most, words.naturalWidth + 2 * own.sidePadding) : own.most
        height: own.height - y
        begins: own.row.first
        ends: own.row.last
        color: Tokens.accentTint
        edge: own.row.delivery === Store.Delivery.Failed ? Tokens.danger : "transparent"
        flashing: own.flashing
    }
    BlockWords {
        id: words

        x: bubble.x + own.sidePadding
        y: own.gap + (own.row.first ? own.margin : 0)
        width: bubble.width - 2 * own.sidePadding
        part: own.row.part
        plain: true
        style: own.compact ? Tokens.type.smallFeed : Tokens.type.body
    }
    IconButton {
        objectName: "editButton"
        x: bubble.x - width - 4
        y: bubble.y + (bubble.height - height) / 2
        visible: own.row.first && !own.row.fromCall && own.row.delivery !== Store.Delivery.Pending && (own.hovered || hovered)
        size: 28
        iconSize: 16
        iconName: "edit"
        text: qsTr("Edit")
        onClicked: own.editRequested()
    }
}
