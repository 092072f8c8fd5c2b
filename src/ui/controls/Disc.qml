import QtQuick
import Kiv.Tokens

// An agent's figure: the first letters of a word on a disc tinted in the agent's colour.
Rectangle {
    id: disc

    property int size: 24
    required property string letters
    property int most: 2
    property color base: Tokens.blue.base

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: Tint.ground(base, Tokens.dark)

    Text {
        anchors.centerIn: parent
        // By characters, some of which are two code units.
        text: [...disc.letters].slice(0, disc.most).join("")
        color: Tint.text(disc.base, Tokens.dark)
        font.pixelSize: Math.max(10, Math.round(disc.size * 0.38))
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
