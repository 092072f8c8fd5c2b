pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A button that is an icon: its text is the tooltip and the accessible name.
BareButton {
    id: button

    required property string iconName
    property int size: 36
    property int iconSize: 20
    property bool active: false
    property string keys: ""
    property int badge: 0
    property color color: !enabled ? Tokens.tDisabled : active ? Tokens.accentText : hovered ? Tokens.t1 : Tokens.t2

    implicitWidth: size
    implicitHeight: size

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: button.iconName
            size: button.iconSize
            color: button.color
        }
    }
    background: Ground {
        radius: Math.min(Tokens.radiusControl, button.size / 4)
        color: button.active ? Tokens.accentTint
            : button.down ? Tokens.press
            : button.hovered ? Tokens.hover
            : Tokens.clear

        FocusRing {
            visible: button.visualFocus
            targetRadius: Math.min(Tokens.radiusControl, button.size / 4)
        }
    }

    LatePlace {
        anchors.fill: parent
        wanted: button.badge > 0
        content: Badge {
            anchors.top: parent.top
            anchors.right: parent.right
            anchors.topMargin: -1
            anchors.rightMargin: -2
            count: button.badge
        }
    }
    TipLoader {
        active: button.hovered && !button.down
        text: button.text
        keys: button.keys
    }
}
