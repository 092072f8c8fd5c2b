import QtQuick
import Kiv.Controls
import Kiv.Store

// To what the canvas showed before, and back again; there once the history has more than this.
Row {
    id: steps

    required property CanvasRoom canvas

    readonly property bool any: canvas.hasEarlier || canvas.hasLater

    visible: any

    IconButton {
        objectName: "stepBack"
        enabled: steps.canvas.hasEarlier
        iconName: "left"
        text: qsTr("Earlier canvas")
        keys: qsTr("Alt Left")
        onClicked: steps.canvas.stepBack()
    }
    IconButton {
        objectName: "stepForward"
        enabled: steps.canvas.hasLater
        iconName: "right"
        text: qsTr("Later canvas")
        keys: qsTr("Alt Right")
        onClicked: steps.canvas.stepForward()
    }
}
