pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// What came in and went out as pairs of bars, and the balance as a line over them.
ArtScene {
    id: cashflow

    readonly property real plotY: legend.y + legend.height + 10 + plot.headroom

    marks: scene.cfMonths.length

    PlotAxis {
        id: axis

        low: cashflow.scene.cfLow
        high: cashflow.scene.cfHigh
        height: plot.height
        font: measured.font
    }
    CashflowPlot {
        id: plot

        scene: cashflow.scene
        width: cashflow.inner - axis.gutter
        height: Math.max(80, cashflow.height - cashflow.plotY - plot.belowHeight - cashflow.footroom)
        font: measured.font
    }
    Label {
        id: measured

        visible: false
        tabular: true
        style: Tokens.type.captionStrong
    }
    PlotLegend {
        id: legend

        x: cashflow.side
        y: cashflow.headroom
        width: cashflow.inner
        plot: plot
    }
    PlotGrid {
        x: cashflow.side
        y: cashflow.plotY
        width: cashflow.inner
        height: plot.height
        axis: axis
        gutter: axis.gutter
    }
    Column {
        x: cashflow.side
        y: cashflow.plotY + plot.height + plot.figuresY
        width: axis.gutter - 8
        visible: plot.showsFigures

        Label {
            width: parent.width
            height: plot.figureHeight
            visible: plot.hasIn
            style: Tokens.type.caption
            color: Tokens.t3
            text: qsTr("In")
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            height: plot.figureHeight
            visible: plot.hasOut
            style: Tokens.type.caption
            color: Tokens.t3
            text: qsTr("Out")
            Accessible.ignored: true
        }
    }
    ListView {
        id: periods

        x: cashflow.side + axis.gutter + Math.max(0, Math.floor((plot.width - width) / 2))
        y: cashflow.plotY - plot.headroom
        width: Math.min(plot.width, plot.slot * cashflow.marks)
        height: plot.headroom + plot.height + plot.belowHeight
        orientation: Qt.Horizontal
        interactive: plot.scrolls
        model: SceneModel {
            rows: plot.periods
        }
        currentIndex: cashflow.current
        keyNavigationEnabled: false
        highlightMoveDuration: 0
        clip: plot.scrolls
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration

        T.ScrollBar.horizontal: ScrollBar {
            policy: T.ScrollBar.AlwaysOn
        }

        delegate: PeriodBars {
            art: cashflow
            plot: plot
        }
    }
    BalanceLine {
        x: periods.x
        y: periods.y
        width: periods.width
        height: plot.headroom + plot.height + 8
        clip: periods.clip
        opacity: cashflow.entrance.grown(plot.periods.length)
        plot: plot
        offset: periods.contentX
    }
}
