import QtQuick
import Kiv.Tokens

// KIV's own sign: a ring with a core and a satellite, which goes around while KIV thinks.
Item {
    id: mark

    property int size: 24
    property color color: Tokens.accentText
    property bool thinking: false

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: "transparent"
        border.width: Math.max(2, mark.size / 12)
        border.color: mark.color
    }
    Rectangle {
        anchors.centerIn: parent
        width: 2 * Math.round(mark.size * 0.17)
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
            width: Math.round(mark.size * 0.29)
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
