import QtQuick

// A rounded frame, or the part of one that goes on above or below it.
Item {
    id: slice

    property bool begins: true
    property bool ends: true
    required property int radius
    required property color color
    property color edge: "transparent"
    property int edgeWidth: 1

    clip: !begins || !ends

    Rectangle {
        y: slice.begins ? 0 : -2 * radius
        width: slice.width
        height: slice.height - y + (slice.ends ? 0 : 2 * radius)
        radius: slice.radius
        color: slice.color
        border.width: slice.edgeWidth
        border.color: slice.edge
    }
}
