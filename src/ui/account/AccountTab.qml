import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// Leads to one of the account pages.
BareButton {
    id: tab

    required property string iconName
    property bool chosen: false
    property bool destructive: false
    readonly property color color: destructive ? Tokens.dangerText : chosen ? Tokens.accentText : Tokens.t2

    implicitWidth: Math.ceil(words.implicitWidth) + 56
    implicitHeight: Tokens.fit(40)
    Accessible.role: Accessible.PageTab
    Accessible.selected: chosen

    background: Ground {
        radius: Tokens.radiusControl
        color: tab.chosen ? Tokens.accentTint : tab.down ? Tokens.press : tab.hovered ? Tokens.hover : Tokens.clear

        FocusRing {
            anchors.margins: -2
            visible: tab.visualFocus
        }
    }

    Icon {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: tab.iconName
        size: 20
        color: tab.color
    }
    Label {
        id: words

        x: 44
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.name
        color: tab.color
        text: tab.text
        Accessible.ignored: true
    }
}
