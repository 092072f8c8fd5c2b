import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// Leads from a message to the scene that it carries.
BareButton {
    id: card

    required property string title
    required property string art
    required property bool shown

    implicitHeight: Tokens.fit(44)
    text: shown ? qsTr("%1, on the canvas").arg(title) : qsTr("Show %1 on the canvas").arg(title)

    background: Ground {
        radius: Tokens.radiusBlock
        color: card.hovered ? Tokens.hover : Tokens.surface
        border.width: 1
        border.color: card.shown ? Tokens.accentLine : Tokens.line

        FocusRing {
            visible: card.visualFocus
            targetRadius: Tokens.radiusBlock
        }
    }

    Rectangle {
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 28
        height: 28
        radius: Tokens.radiusControl
        color: Tokens.accentTint

        Icon {
            anchors.centerIn: parent
            name: card.art
            size: 16
            color: Tokens.accentText
        }
    }
    FullLabel {
        anchors.verticalCenter: parent.verticalCenter
        x: 46
        width: state.x - x - 10
        style: Tokens.type.smallMedium
        text: card.title
    }
    Label {
        id: state

        anchors.verticalCenter: parent.verticalCenter
        x: card.width - width - 12
        style: Tokens.type.captionMedium
        color: card.shown ? Tokens.t3 : Tokens.accentText
        text: card.shown ? qsTr("On canvas") : qsTr("Show")
        Accessible.ignored: true
    }
}
