import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A colour and its word.
Row {
    id: entry

    required property color color
    required property string text
    property TypeStyle style: Tokens.type.caption

    spacing: 6

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 3
        color: entry.color
    }
    Label {
        style: entry.style
        color: Tokens.t2
        text: entry.text
    }
}
