import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// A person of an answer: initials on a grey disc.
Rectangle {
    id: disc

    property int size: 36
    required property string name

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: Tokens.sunken

    Text {
        anchors.centerIn: parent
        text: [...Figures.initials(disc.name)].slice(0, disc.size < 28 ? 1 : 2).join("")
        color: Tokens.t2
        font.pixelSize: Math.max(10, Math.round(disc.size * 0.36))
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
