import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// Leads to the end of a feed, and says how many messages came there unseen.
BareButton {
    id: jump

    property int unseen: 0

    implicitWidth: 36
    implicitHeight: 36
    text: qsTr("Jump to latest")
    Accessible.name: unseen > 0 ? qsTr("Jump to latest, %n new", "", unseen) : text

    background: Item {
        Shadow {
            level: Shadow.Floating
            targetRadius: 18
        }
        Ground {
            anchors.fill: parent
            radius: 18
            color: jump.hovered ? Tokens.hover : Tokens.surface
            border.width: 1
            border.color: Tokens.line2
        }
        FocusRing {
            visible: jump.visualFocus
            targetRadius: 18
        }
    }

    Icon {
        anchors.centerIn: parent
        name: "down"
        color: Tokens.t2
    }
    Badge {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.topMargin: -4
        anchors.rightMargin: -4
        count: jump.unseen
    }
    TipLoader {
        active: jump.hovered && !jump.down
        text: jump.text
    }
}
