import QtQuick
import Kiv.Tokens

// A bar on its track. It ends at the track's end; its figure is printed beside it.
Rectangle {
    id: track

    /// Length of the bar as a share of the track; below zero it goes to the left of `zero`.
    required property real value
    required property color fill
    /// Where zero stands on the track, from 0 to 1.
    property real zero: 0
    /// How much of its length the bar has, while it comes in.
    property real grown: 1

    property real shown: Math.max(-zero, Math.min(1 - zero, value))

    implicitHeight: 8
    radius: height > 8 && height < 12 ? Tokens.radiusSmall : height / 2
    color: Tokens.sunken

    Behavior on shown {
        NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
    }

    Rectangle {
        readonly property real zeroX: track.zero * track.width

        // A little is more than nothing.
        width: track.value === 0 ? 0 : Math.max(3, Math.abs(track.shown) * track.grown * track.width)
        x: track.value < 0 ? zeroX - width : Math.min(zeroX, track.width - width)
        height: parent.height
        radius: Math.min(track.radius, width / 2)
        color: track.fill
    }
    Rectangle {
        visible: track.zero > 0
        x: Math.round(track.zero * track.width) - 1
        y: -4
        width: 1
        height: parent.height + 8
        color: Tokens.control
    }
}
