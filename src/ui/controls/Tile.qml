import QtQuick
import Kiv.Tokens

// A project's figure: its first letter on a rounded square.
Rectangle {
    id: tile

    property int size: 24
    /// Of a longer word the first is shown.
    required property string letter
    property color fill: Tokens.blue.base

    implicitWidth: size
    implicitHeight: size
    radius: Math.round(size * 0.3)
    color: fill

    Text {
        anchors.centerIn: parent
        text: [...tile.letter][0] ?? ""
        color: Tint.onFill(tile.fill)
        font.pixelSize: Math.round(tile.size * 0.46)
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
