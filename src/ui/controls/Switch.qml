import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// On or off.
T.Switch {
    id: control

    implicitWidth: 36
    implicitHeight: 20
    Accessible.name: text

    // At the right end, where a switch is longer than that.
    indicator: Rectangle {
        x: control.width - width - control.rightPadding
        y: (control.height - height) / 2
        width: 36
        height: 20
        radius: 10
        color: !control.enabled ? Tokens.sunken : control.checked ? Tokens.accent : Tokens.control

        Behavior on color {
            ColorAnimation { duration: Tokens.instant }
        }
        Rectangle {
            x: control.checked ? 18 : 2
            y: 2
            width: 16
            height: 16
            radius: 8
            color: Tokens.accentInk

            Behavior on x {
                enabled: !Tokens.reducedMotion

                NumberAnimation { duration: Tokens.quick; easing.type: Easing.OutCubic }
            }
        }
        FocusRing {
            visible: control.visualFocus
            targetRadius: 10
        }
    }
}
