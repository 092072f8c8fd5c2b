import QtQuick
import Kiv.Tokens

// The signed-in person: their picture, or initials on a violet disc.
Rectangle {
    id: avatar

    property int size: 28
    required property string initials
    property url picture
    /// What the avatar stands on.
    property color ground: Tokens.surface

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: Tokens.accentTint

    Text {
        anchors.centerIn: parent
        visible: !face.visible
        text: avatar.initials
        color: Tokens.accentText
        font.pixelSize: Math.max(10, Math.round(avatar.size * 0.37))
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    // A ring in the colour of the ground rounds the picture.
    Item {
        id: face

        readonly property int corner: Math.ceil(avatar.size * 0.22)

        anchors.fill: parent
        visible: photo.status === Image.Ready
        clip: true

        Image {
            id: photo

            anchors.fill: parent
            source: avatar.picture
            sourceSize.width: 256
            sourceSize.height: 256
            fillMode: Image.PreserveAspectCrop
            asynchronous: true
            mipmap: true
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: -face.corner
            radius: width / 2
            color: "transparent"
            border.width: face.corner
            border.color: avatar.ground
            antialiasing: true
        }
    }
}
