import QtQuick
import QtQuick.Shapes
import Kiv.Tokens

// A turning ring, 16 px: work is under way.
Shape {
    id: busy

    required property color color

    width: 16
    height: 16

    ShapePath {
        strokeWidth: 2
        strokeColor: busy.color
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap

        PathAngleArc {
            centerX: 8
            centerY: 8
            radiusX: 6
            radiusY: 6
            startAngle: -90
            sweepAngle: 270
        }
    }
    RotationAnimation on rotation {
        from: 0
        to: 360
        duration: Tokens.orbit / 2
        loops: Animation.Infinite
        running: busy.visible && !Tokens.reducedMotion
    }
}
