import QtQuick
import Kiv.Tokens

// A line that moves below the caption while a scene is drawn.
Rectangle {
    id: track

    property bool running: false

    implicitHeight: 3
    radius: 2
    color: Tokens.line

    Rectangle {
        property real at

        x: track.width * at
        width: track.width * 0.28
        height: parent.height
        radius: 2
        color: Tokens.accentText

        SequentialAnimation on at {
            running: track.running && track.visible && !Tokens.reducedMotion
            loops: Animation.Infinite

            NumberAnimation { from: 0; to: 0.72; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
            NumberAnimation { from: 0.72; to: 0; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
        }
    }
}
