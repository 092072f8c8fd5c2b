import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// The head of a code block: its button says for a moment that it has copied.
Item {
    id: head

    signal copyRequested()

    implicitHeight: 34

    BareButton {
        id: button

        objectName: "copyCode"
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: Math.ceil(words.implicitWidth) + 37
        implicitHeight: 26
        text: timer.running ? qsTr("Copied") : qsTr("Copy")
        onClicked: {
            head.copyRequested()
            timer.restart()
        }

        background: Rectangle {
            radius: Tokens.radiusChip
            color: button.down ? Tokens.press : button.hovered ? Tokens.hover : "transparent"

            FocusRing {
                visible: button.visualFocus
                targetRadius: Tokens.radiusChip
            }
        }

        Icon {
            x: 8
            anchors.verticalCenter: parent.verticalCenter
            name: timer.running ? "check" : "copy"
            size: 16
            color: words.color
        }
        Label {
            id: words

            x: 29
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.captionMedium
            color: timer.running ? Tokens.green.text : button.hovered ? Tokens.t1 : Tokens.t2
            text: button.text
            Accessible.ignored: true
        }
        Timer {
            id: timer

            interval: Tokens.confirmation
        }
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
