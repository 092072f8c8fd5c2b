import QtQuick
import Kiv.Tokens

// The signed-in person: initials on a violet disc.
Rectangle {
    id: avatar

    property int size: 28
    required property string initials

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: Tokens.accentTint

    Text {
        anchors.centerIn: parent
        text: avatar.initials
        color: Tokens.accentText
        font.pixelSize: Math.max(10, Math.round(avatar.size * 0.37))
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
