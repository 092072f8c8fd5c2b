import QtQuick
import Kiv.Tokens

// KIV's own sign: a ring with a core and a satellite, which goes around while KIV thinks.
Item {
    id: mark

    property int size: 24
    property bool offline: false
    property color color: offline ? Tokens.t3 : Tokens.accentText
    property bool thinking: false
    property real stroke: Math.max(2, size / 12)
    /// What is inside the ring.
    property color ground: "transparent"
    /// The core and the satellite, as shares of the size.
    property real core: 0.34
    property real satellite: 0.29
    property real coreScale: 1

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: mark.ground
        border.width: mark.stroke
        border.color: mark.color
    }
    Rectangle {
        anchors.centerIn: parent
        width: (mark.coreScale === 1 ? 2 * Math.round(mark.size * mark.core / 2) : mark.size * mark.core * mark.coreScale)
        height: width
        radius: width / 2
        color: mark.color
    }
    Item {
        id: orbit

        anchors.fill: parent

        Rectangle {
            x: mark.size * 0.824 - width / 2
            y: mark.size * 0.176 - height / 2
            width: Math.round(mark.size * mark.satellite)
            height: width
            radius: width / 2
            color: mark.color
        }
        RotationAnimation on rotation {
            from: 0
            to: 360
            duration: Tokens.orbit
            loops: Animation.Infinite
            running: mark.thinking && mark.visible && !Tokens.reducedMotion
            onStopped: orbit.rotation = 0
        }
    }
}
