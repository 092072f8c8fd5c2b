import QtQuick
import Kiv.Tokens

// A bar that stands on the line of zero, or hangs from it.
Item {
    id: bar

    /// A percentage of the plot's height, below zero for a bar that hangs.
    required property real part
    required property real plotHeight
    required property real grown
    required property color color

    property real shown: part

    Behavior on shown {
        NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
    }

    Rectangle {
        y: bar.shown < 0 ? 0 : -height
        width: bar.width
        height: bar.part === 0 ? 0 : Math.max(1, Math.round(Math.abs(bar.shown) / 100 * bar.plotHeight * bar.grown))
        radius: Math.min(Tokens.radiusSmall, height / 2)
        color: bar.color
    }
}
