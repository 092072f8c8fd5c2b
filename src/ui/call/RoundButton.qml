import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A round button of the call's controls: its text is the tooltip and the accessible name.
BareButton {
    id: button

    required property string iconName
    /// Leads to a choice.
    property bool leadsOn: false
    /// What it stands for is so now.
    property bool on: false
    property bool ending: false
    property string keys: ""
    readonly property color ink: !enabled ? Tokens.tDisabled : ending ? "#ffffff" : on ? Tokens.accentText : Tokens.t1

    implicitWidth: ending ? 76 : 52
    implicitHeight: 52
    Accessible.role: leadsOn ? Accessible.ButtonMenu : Accessible.Button

    background: Rectangle {
        radius: 26
        color: button.ending ? Tokens.danger
            : button.on ? Tokens.accentTint
            : button.down ? Tokens.press
            : Tokens.sunken
        // The controls' own colours have no second shade: an edge answers to the pointer.
        border.width: button.enabled && (button.hovered || button.on && Tokens.highContrast) ? 1 : 0
        border.color: button.ending ? Tokens.dangerText : button.on ? Tokens.accentLine : Tokens.line2

        FocusRing {
            visible: button.visualFocus
            targetRadius: 26
        }
    }

    Icon {
        x: Math.round((button.width - width) / 2) - (button.leadsOn ? 5 : 0)
        anchors.verticalCenter: parent.verticalCenter
        name: button.iconName
        size: 22
        color: button.ink
    }
    Icon {
        x: button.width - width - 5
        anchors.verticalCenter: parent.verticalCenter
        visible: button.leadsOn
        name: "down"
        size: 14
        color: button.ink
    }
    TipLoader {
        active: button.hovered && !button.down
        above: true
        text: button.text
        keys: button.keys
    }
}
