pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Tokens

// How loud it is, as sixteen bars. They breathe while the counterpart speaks.
Row {
    id: bars

    property real level: 0
    property bool breathing: false
    /// Where in a breath they are, 0 to 1.
    property real phase: 0
    property color color: Tokens.accentText

    readonly property list<real> shape: [0.17, 0.3, 0.5, 0.37, 0.67, 0.87, 0.57, 1, 0.73, 0.47, 0.8, 0.6, 0.33, 0.5, 0.27, 0.17]

    height: 30
    spacing: 4
    Accessible.ignored: true

    Repeater {
        model: bars.shape

        Rectangle {
            required property int index
            required property real modelData

            readonly property real share: bars.breathing ? 0.75 + 0.25 * Math.sin(2 * Math.PI * (bars.phase + index / 8)) : bars.level

            anchors.verticalCenter: parent?.verticalCenter
            width: 4
            height: 4 + 26 * modelData * share
            radius: 2
            color: bars.color
        }
    }
}
