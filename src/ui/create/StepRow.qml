import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// One page of the wizard: its figure, then its name. An earlier one can be gone back to.
BareButton {
    id: row

    required property int number
    property bool current: false
    property bool done: false

    implicitHeight: Tokens.fit(40)
    Accessible.name: current ? qsTr("%1, current step").arg(text) : done ? qsTr("%1, done").arg(text) : text

    background: Ground {
        radius: Tokens.radiusControl
        color: row.current ? Tokens.accentTint : row.hovered && row.enabled ? Tokens.hover : Tokens.clear

        FocusRing {
            anchors.margins: 0
            targetRadius: 4
            visible: row.visualFocus
        }
    }

    Rectangle {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        width: 24
        height: 24
        radius: 12
        color: row.done ? Tokens.green.tint : row.current ? Tokens.accent : Tokens.surface
        border.width: row.done || row.current ? 0 : 1
        border.color: Tokens.line2

        Icon {
            anchors.centerIn: parent
            visible: row.done
            name: "check"
            size: 14
            color: Tokens.green.text
        }
        Label {
            anchors.centerIn: parent
            visible: !row.done
            style: Tokens.type.captionStrong
            color: row.current ? Tokens.accentInk : Tokens.t3
            text: row.number
            Accessible.ignored: true
        }
    }
    Label {
        x: 44
        width: parent.width - x - 8
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.name
        color: row.current || row.done ? Tokens.t1 : Tokens.t3
        text: row.text
        Accessible.ignored: true
    }
}
