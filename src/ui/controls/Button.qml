pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A button with a label, in one of five weights.
BareButton {
    id: button

    enum Kind { Quiet, Secondary, Main, Danger, DangerFilled }
    enum Size { Small, Normal, Large }

    property int kind: Button.Secondary
    property int size: Button.Normal
    property string iconName: ""
    property string trailingIcon: ""
    property bool busy: false
    property color labelColor: !enabled ? Tokens.tDisabled
        : kind === Button.Main ? Tokens.accentInk
        : kind === Button.DangerFilled ? "#ffffff"
        : kind === Button.Danger ? Tokens.dangerText
        : Tokens.t1
    readonly property bool filled: kind === Button.Main || kind === Button.DangerFilled

    implicitWidth: Math.ceil(row.implicitWidth) + leftPadding + rightPadding
    implicitHeight: Tokens.fit(size === Button.Small ? 32 : size === Button.Large ? 44 : 36)
    horizontalPadding: size === Button.Small ? 12 : 14

    background: Ground {
        radius: Tokens.radiusControl
        border.width: button.enabled && !button.filled && button.kind !== Button.Quiet ? 1 : 0
        border.color: button.kind === Button.Danger ? Tokens.red.line : Tokens.line2
        color: !button.enabled ? Tokens.sunken
            : button.kind === Button.DangerFilled ? Tokens.danger
            : button.kind === Button.Main ? (button.hovered || button.down ? Tokens.accentHover : Tokens.accent)
            : button.down ? Tokens.press
            : button.hovered ? Tokens.hover
            : button.kind === Button.Quiet ? Tokens.clear
            : Tokens.surface

        FocusRing {
            visible: button.visualFocus
        }
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: button.size === Button.Small ? 6 : 8

        LatePlace {
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            wanted: button.busy
            content: Busy {
                color: button.labelColor
            }
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: name !== ""
            name: button.iconName
            size: 16
            color: button.labelColor
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            style: button.size === Button.Small ? Tokens.type.smallMedium
                : button.size === Button.Large ? Tokens.type.strong : Tokens.type.name
            color: button.labelColor
            text: button.text
            Accessible.ignored: true
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: name !== ""
            name: button.trailingIcon
            size: 16
            color: button.labelColor
        }
    }
}
