import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A question or an answer that one click sends.
BareButton {
    id: chip

    property int maximumWidth: 420

    implicitWidth: Math.min(caption.implicitWidth + 26, maximumWidth)
    implicitHeight: Tokens.fit(32)

    background: Ground {
        radius: height / 2
        color: chip.hovered || chip.down ? Tokens.accentTint : Tokens.surface
        border.width: 1
        border.color: chip.hovered || chip.down ? Tokens.accentLine : Tokens.line2

        FocusRing {
            visible: chip.visualFocus
            targetRadius: 16
        }
    }

    Label {
        id: caption

        anchors.verticalCenter: parent.verticalCenter
        x: 13
        width: Math.min(implicitWidth, chip.width - 26)
        style: Tokens.type.smallMedium
        color: chip.hovered || chip.down ? Tokens.accentText : Tokens.t1
        text: chip.text
        Accessible.ignored: true
    }
    TipLoader {
        active: chip.hovered && caption.truncated
        text: chip.text
    }
}
