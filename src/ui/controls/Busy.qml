import QtQuick
import Kiv.Icons
import Kiv.Tokens

// A turning ring, 16 px: work is under way.
Icon {
    id: busy

    name: "busy"
    size: 16

    RotationAnimation on rotation {
        from: 0
        to: 360
        duration: Tokens.orbit / 2
        loops: Animation.Infinite
        running: busy.visible && !Tokens.reducedMotion
    }
}
