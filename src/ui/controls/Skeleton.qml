import QtQuick
import Kiv.Tokens

// A place where something will be.
Rectangle {
    id: skeleton

    property bool breathing: false

    implicitHeight: 11
    radius: Math.min(6, height / 2)
    color: Tokens.skeleton
    Accessible.ignored: true

    SequentialAnimation on opacity {
        running: skeleton.breathing && skeleton.visible && !Tokens.reducedMotion
        loops: Animation.Infinite

        NumberAnimation { to: 0.55; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
        NumberAnimation { to: 1; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
    }
}
