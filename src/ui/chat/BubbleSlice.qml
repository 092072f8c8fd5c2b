import QtQuick
import Kiv.Controls
import Kiv.Tokens

// The ground of a row in a bubble. Its edge can flash once.
FrameSlice {
    id: slice

    property bool flashing: false

    radius: Tokens.radiusCard

    FrameSlice {
        id: glow

        anchors.fill: parent
        begins: slice.begins
        ends: slice.ends
        radius: slice.radius
        color: "transparent"
        edge: Tokens.accent
        edgeWidth: 2
        opacity: 0

        SequentialAnimation {
            running: slice.flashing

            NumberAnimation { target: glow; property: "opacity"; from: 0; to: 1; duration: Tokens.quick }
            PauseAnimation { duration: Tokens.reducedMotion ? Tokens.breathe : 0 }
            NumberAnimation { target: glow; property: "opacity"; to: 0; duration: Tokens.reducedMotion ? Tokens.quick : Tokens.breathe }
        }
    }
}
