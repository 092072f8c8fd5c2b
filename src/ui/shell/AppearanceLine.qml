import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// The name of a setting of the appearance, with its icon.
Item {
    id: line

    required property string iconName
    required property string text

    implicitHeight: Tokens.fit(36)

    Icon {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: line.iconName
        color: Tokens.t2
    }
    Label {
        x: 40
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.line
        text: line.text
        Accessible.ignored: true
    }
}
