import QtQuick

// A text style. Lengths are device-independent pixels.
QtObject {
    required property real scale
    required property int normalSize
    required property int normalLine
    property int weight: Font.Normal
    property real tracking: 0
    // As they are with the size of text that the person has chosen.
    readonly property int size: Math.round(normalSize * scale)
    readonly property int line: Math.round(normalLine * scale)
    // Inter's own line is 1.21 of its size; half of what a line has beyond that goes above the text.
    readonly property real lead: (line - Math.ceil(size * 1.21)) / 2
}
