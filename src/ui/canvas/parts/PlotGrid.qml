pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The lines of a plot and the values that they stand for.
Item {
    id: grid

    required property PlotAxis axis
    /// The room to the left of the plot.
    required property real gutter

    Accessible.ignored: true

    Repeater {
        model: grid.axis.ticks

        Item {
            id: tick

            required property plotTick modelData

            y: modelData.y
            width: grid.width

            Label {
                y: -8
                tabular: true
                style: Tokens.type.caption
                color: Tokens.t3
                elide: Text.ElideNone
                text: tick.modelData.text
                Accessible.ignored: true
            }
            Rectangle {
                x: grid.gutter
                width: parent.width - x
                height: 1
                color: tick.modelData.zero ? Tokens.line2 : Tokens.line
            }
        }
    }
}
