import QtQuick
import Kiv.Tokens

// Breathes where the words of an answer go on.
Rectangle {
    id: dot

    width: 8
    height: 8
    radius: 4
    color: Tokens.accent

    SequentialAnimation on opacity {
        running: dot.visible && !Tokens.reducedMotion
        loops: Animation.Infinite

        NumberAnimation { to: 0.55; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
        NumberAnimation { to: 1; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
    }
}
