import QtQuick
import Kiv.Tokens

// A bar that stands on the line of zero, or hangs from it.
Item {
    id: bar

    required property real length
    required property real grown
    required property color color

    property real shown: length

    Behavior on shown {
        NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
    }

    Rectangle {
        readonly property real extent: Math.abs(bar.shown) * bar.grown

        y: bar.shown < 0 ? 0 : -height
        width: bar.width
        height: bar.length === 0 ? 0 : Math.max(1, Math.round(extent))
        radius: Math.min(Tokens.radiusSmall, height / 2)
        color: bar.color
    }
}
