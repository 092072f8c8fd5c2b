import QtQuick
import Kiv.Tokens

// The ring around what holds the keyboard's focus.
Rectangle {
    property int targetRadius: Tokens.radiusControl

    anchors.fill: parent
    anchors.margins: -4
    radius: targetRadius + 4
    color: "transparent"
    border.width: 2
    border.color: Tokens.focus
}
