import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// One command of a menu.
BareButton {
    id: row

    property string iconName: ""
    property string hint: ""
    property bool destructive: false

    implicitWidth: 200
    implicitHeight: Tokens.fit(36)
    Accessible.role: Accessible.MenuItem

    background: Ground {
        radius: Tokens.radiusControl
        color: row.hovered || row.down || row.highlighted || row.visualFocus ? Tokens.hoverRaised : Tokens.clear

        FocusRing {
            anchors.margins: 0
            targetRadius: 4
            visible: row.visualFocus
        }
    }

    Icon {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: row.iconName
        color: row.destructive ? Tokens.dangerText : Tokens.t2
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        x: 40
        width: trailing.x - x - 8
        style: Tokens.type.line
        color: row.destructive ? Tokens.dangerText : Tokens.t1
        text: row.text
        Accessible.ignored: true
    }
    Label {
        id: trailing

        anchors.verticalCenter: parent.verticalCenter
        x: row.width - width - 10
        width: Math.min(implicitWidth, row.width / 2)
        style: Tokens.type.caption
        color: Tokens.t3
        text: row.hint
    }
}
