import QtQuick

// One data colour: `base` for marks, `solid` with `solidInk` for words inside a fill, `text` for words
// on a surface or on the tint.
QtObject {
    required property color base
    required property color solid
    required property color solidInk
    required property color text
    required property color tint
    required property color line
}
