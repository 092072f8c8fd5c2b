import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// What the bars and the line of a cash flow stand for.
SceneLegend {
    id: legend

    required property CashflowPlot plot

    LegendEntry {
        visible: legend.plot.hasIn
        color: Tokens.green.base
        text: qsTr("In")
        style: Tokens.type.small
    }
    LegendEntry {
        visible: legend.plot.hasOut
        color: Tokens.amber.base
        text: qsTr("Out")
        style: Tokens.type.small
    }
    Row {
        visible: legend.plot.hasBalance
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 3
            radius: 1.5
            color: Tokens.violet.base
        }
        Label {
            style: Tokens.type.small
            color: Tokens.t2
            text: qsTr("Balance")
        }
    }
}
