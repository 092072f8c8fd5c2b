import QtQuick
import Kiv.Tokens

// What lifts a sheet or a card off the ground: a line's width of shade at its lower edge.
Rectangle {
    anchors.fill: parent
    anchors.bottomMargin: -1
    visible: !Tokens.dark
    color: Qt.alpha("#141722", 0.05)
}
