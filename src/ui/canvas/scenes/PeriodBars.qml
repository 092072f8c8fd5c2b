import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// A period: what came in, what went out, and its name below the plot.
MarkArea {
    id: period

    required property plotPeriod modelData
    required property int index
    required property CashflowPlot plot

    readonly property real grown: art.entrance.grown(index)
    readonly property real zeroY: plot.headroom + plot.zeroY
    readonly property real barsWidth: plot.hasIn && plot.hasOut ? 2 * plot.barWidth + plot.barGap : plot.barWidth
    readonly property real barsX: Math.round((width - barsWidth) / 2)

    function shown(figure: string): string {
        return figure === "" ? "—" : figure
    }

    place: index
    width: plot.slot
    height: plot.headroom + plot.height + plot.wordsHeight
    label: modelData.month.name
    value: Figures.joined([plot.hasIn ? qsTr("In %1").arg(shown(modelData.month.in)) : "",
        plot.hasOut ? qsTr("Out %1").arg(shown(modelData.month.out)) : "",
        plot.hasBalance ? qsTr("Balance %1").arg(shown(modelData.month.balance)) : ""], " · ")

    PeriodBar {
        visible: period.plot.hasIn
        x: period.barsX
        y: period.zeroY
        width: period.plot.barWidth
        part: period.modelData.month.inH
        plotHeight: period.plot.height
        grown: period.grown
        color: Tokens.green.base
    }
    PeriodBar {
        visible: period.plot.hasOut
        x: period.barsX + period.barsWidth - width
        y: period.zeroY
        width: period.plot.barWidth
        part: period.modelData.month.outH
        plotHeight: period.plot.height
        grown: period.grown
        color: Tokens.amber.base
    }
    Label {
        visible: period.modelData.nameWidth > 0
        x: period.modelData.nameX
        y: period.plot.headroom + period.plot.height + 12
        width: period.modelData.nameWidth
        style: Tokens.type.caption
        color: Tokens.t2
        text: period.modelData.month.name
        Accessible.ignored: true
    }
    Column {
        y: period.plot.headroom + period.plot.height + period.plot.figuresY
        width: parent.width
        visible: period.plot.showsFigures

        Label {
            width: parent.width
            height: period.plot.figureHeight
            visible: period.plot.hasIn
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideNone
            tabular: true
            style: Tokens.type.captionMedium
            text: period.shown(period.modelData.month.in)
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            height: period.plot.figureHeight
            visible: period.plot.hasOut
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideNone
            tabular: true
            style: Tokens.type.captionMedium
            text: period.shown(period.modelData.month.out)
            Accessible.ignored: true
        }
    }
}
