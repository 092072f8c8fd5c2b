import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A row of a menu that turns something on and off.
Switch {
    id: row

    required property string iconName

    /// As a press of the mouse does.
    function activate() {
        toggle()
        toggled()
    }

    implicitHeight: Tokens.fit(36)
    rightPadding: 10
    Keys.onReturnPressed: activate()
    Keys.onEnterPressed: activate()

    background: Rectangle {
        radius: Tokens.radiusControl
        color: row.hovered || row.down || row.visualFocus ? Tokens.hoverRaised : "transparent"
    }

    Icon {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: row.iconName
        color: Tokens.t2
    }
    Label {
        x: 40
        anchors.verticalCenter: parent.verticalCenter
        width: row.width - x - 36 - 10 - 8
        style: Tokens.type.line
        text: row.text
        Accessible.ignored: true
    }
}
