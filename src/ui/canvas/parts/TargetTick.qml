import QtQuick
import Kiv.Tokens

// Where a target stands on a bar: a tick that a halo of the surface parts from the bar.
Rectangle {
    property real halo: 2

    implicitWidth: 2 + 2 * halo
    implicitHeight: 24
    color: Tokens.surface

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 2
        height: parent.height
        color: Tokens.t1
    }
}
