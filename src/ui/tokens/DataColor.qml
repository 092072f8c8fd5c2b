import QtQuick

// One data colour: `base` for marks, `text` for words on a surface or on the tint.
QtObject {
    required property color base
    required property color text
    required property color tint
    required property color line
}
