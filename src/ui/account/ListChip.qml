import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A word of a list, with a cross that drops it.
Rectangle {
    id: chip

    required property string text

    signal dropped()

    implicitWidth: words.implicitWidth + 34
    implicitHeight: Tokens.fit(24)
    radius: Tokens.radiusChip
    color: Tokens.sunken

    Label {
        id: words

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.captionMedium
        color: Tokens.t2
        text: chip.text
    }
    BareButton {
        id: cross

        objectName: "dropEntry"
        x: parent.width - width - 3
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: 20
        implicitHeight: 20
        Accessible.name: qsTr("Drop %1").arg(chip.text)
        onClicked: chip.dropped()

        Icon {
            anchors.centerIn: parent
            name: "close"
            size: 12
            color: cross.hovered ? Tokens.t1 : Tokens.t2
        }
        FocusRing {
            anchors.margins: 0
            visible: cross.visualFocus
            targetRadius: 2
        }
    }
}
