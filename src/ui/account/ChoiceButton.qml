import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// Looks like a field and opens a list.
BareButton {
    id: button

    required property string label
    property string placeholder: ""
    property bool failed: false
    /// Room kept free before the arrow.
    property int trailing: 0

    implicitHeight: Tokens.fit(40)
    Accessible.role: Accessible.ComboBox
    Accessible.name: label
    Accessible.description: text
    Keys.onDownPressed: clicked()

    background: Ground {
        radius: Tokens.radiusControl
        color: button.hovered || button.down ? Tokens.inset : Tokens.surface
        border.width: button.failed || button.visualFocus ? 2 : 1
        border.color: button.failed ? Tokens.danger : button.visualFocus ? Tokens.focus : Tokens.control
    }

    Label {
        anchors.verticalCenter: parent.verticalCenter
        x: 12
        width: arrow.x - x - 8 - button.trailing
        color: button.text === "" ? Tokens.t3 : Tokens.t1
        text: button.text === "" ? button.placeholder : button.text
        Accessible.ignored: true
    }
    Icon {
        id: arrow

        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - width - 12
        name: "down"
        size: 16
        color: Tokens.t3
    }
}
