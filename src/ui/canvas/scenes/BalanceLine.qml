pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The balance of a cash flow over its bars, with figures where there is room for them.
Item {
    id: balance

    required property CashflowPlot plot
    /// How far the plot is scrolled.
    required property real offset

    PlotLine {
        anchors.fill: parent
        duration: Tokens.draw
        plotTop: balance.plot.headroom
        offset: balance.offset
        points: balance.plot.line
        color: Tokens.violet.base
        ground: Tokens.surface
    }
    Repeater {
        model: balance.plot.labels

        Rectangle {
            id: chip

            required property plotLabel modelData

            x: modelData.x - balance.offset
            y: balance.plot.headroom + modelData.y
            width: modelData.width
            height: balance.plot.labelHeight
            radius: Tokens.radiusChip
            color: Tokens.surface
            border.width: 1
            border.color: Tokens.violet.line

            Label {
                anchors.centerIn: parent
                tabular: true
                style: Tokens.type.captionStrong
                color: Tokens.violet.text
                text: chip.modelData.text
                Accessible.ignored: true
            }
        }
    }
}
