import QtQuick
import QtQuick.Templates as T
import Kiv.Tokens

// One choice of a segment control.
T.Button {
    id: segment

    property bool chosen: false

    implicitWidth: Math.ceil(words.implicitWidth) + 28
    implicitHeight: 30
    Accessible.name: text
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: chosen

    background: Rectangle {
        radius: Tokens.radiusChip
        color: segment.chosen ? Tokens.surface : segment.hovered ? Tokens.hover : "transparent"
        border.width: segment.chosen ? 1 : 0
        border.color: Tokens.line2

        FocusRing {
            anchors.margins: -2
            visible: segment.visualFocus
            targetRadius: Tokens.radiusChip
        }
    }

    Label {
        id: words

        anchors.centerIn: parent
        style: Tokens.type.smallMedium
        color: segment.chosen ? Tokens.t1 : Tokens.t2
        text: segment.text
        Accessible.ignored: true
    }
}
