import QtQuick

// A text style. Lengths are device-independent pixels.
QtObject {
    required property int size
    required property int line
    property int weight: Font.Normal
    property real tracking: 0
    // Inter's own line is 1.21 of its size; half of what a line has beyond that goes above the text.
    readonly property real lead: (line - Math.ceil(size * 1.21)) / 2
}
