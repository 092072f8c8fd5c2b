import QtQuick
import Kiv.Chat
import Kiv.Tokens

// A block of an answer, on its part of the bubble.
Item {
    id: block

    required property feedRow row
    required property bool compact
    property bool flashing: false
    /// The room between this block and the one above it.
    property int lead: row.part.begins ? 10 : 0
    default property alias content: place.data

    readonly property int indent: compact ? 0 : 40
    readonly property int upper: compact ? 9 : 14
    readonly property int lower: compact ? 9 : 16
    readonly property real inner: place.width
    readonly property TypeStyle style: compact ? Tokens.type.smallFeed : Tokens.type.body

    implicitHeight: place.y + place.childrenRect.height + (row.last ? lower : 0)

    BubbleSlice {
        x: block.indent
        width: block.width - x
        height: block.height
        begins: block.row.first
        ends: block.row.last
        color: Tokens.surface
        edge: Tokens.line
        flashing: block.flashing
    }
    Item {
        id: place

        x: block.indent + (block.compact ? 12 : 20)
        y: block.row.first ? block.upper : block.lead
        width: block.width - x - (block.compact ? 12 : 20)
    }
}
