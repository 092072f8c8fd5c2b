import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// A day that is chosen or not.
T.AbstractButton {
    id: day

    implicitWidth: Tokens.fit(52)
    implicitHeight: Tokens.fit(36)
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked

    background: Rectangle {
        radius: Tokens.radiusControl
        color: day.checked ? Tokens.accentTint : day.hovered ? Tokens.hover : Tokens.surface
        border.width: 1
        border.color: day.checked ? Tokens.accentLine : Tokens.line2

        FocusRing {
            visible: day.visualFocus
        }
    }

    Label {
        anchors.centerIn: parent
        style: Tokens.type.smallMedium
        color: day.checked ? Tokens.accentText : Tokens.t2
        text: day.text
        Accessible.ignored: true
    }
}
