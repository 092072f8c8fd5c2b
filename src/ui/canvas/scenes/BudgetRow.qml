import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// One line of a budget: what was spent on the bar of what was planned.
SceneRow {
    id: row

    required property bgRow modelData
    required property BudgetColumns columns

    readonly property bool planned: modelData.plan !== ""
    readonly property string plan: planned ? modelData.plan : "—"
    readonly property string change: Figures.minus(modelData.delta)
    readonly property string verdict: !planned ? qsTr("no plan") : modelData.deltaGood ? "" : qsTr("Over")

    label: modelData.name
    value: modelData.actual
    share: Figures.joined([planned ? qsTr("plan %1").arg(plan) : "", verdict, change], " · ")
    tone: Figures.joined([planned ? qsTr("plan %1").arg(plan) : "", change, verdict], ", ")

    NameAndNote {
        width: row.columns.name
        anchors.verticalCenter: parent.verticalCenter
        name: row.modelData.name
        note: row.columns.plan === 0 && row.planned ? qsTr("plan %1").arg(row.plan) : ""
    }
    Item {
        id: chart

        property real planned: row.modelData.planPct

        x: row.columns.chartX
        width: row.columns.chart
        height: 28
        anchors.verticalCenter: parent.verticalCenter

        Behavior on planned {
            NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
        }

        Rectangle {
            y: 2
            width: chart.planned / 100 * parent.width
            height: 24
            radius: Math.min(Tokens.radiusChip, width / 2)
            color: Tokens.sunken
        }
        ValueBar {
            y: 10
            width: parent.width
            color: "transparent"
            value: row.modelData.actPct / 100
            fill: row.art.dataColor(row.modelData.fill).base
            grown: row.grown
        }
        TargetTick {
            x: Math.max(-halo, chart.planned / 100 * parent.width - width + halo)
            height: 28
            halo: 1.5
            visible: row.planned && row.change !== ""
        }
    }
    Label {
        x: row.columns.planX
        width: row.columns.plan
        anchors.verticalCenter: parent.verticalCenter
        visible: width > 0
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.line
        color: Tokens.t2
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: row.plan
        Accessible.ignored: true
    }
    Label {
        x: row.columns.actualX
        width: row.columns.actual
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.strong
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: row.modelData.actual === "" ? "—" : row.modelData.actual
        Accessible.ignored: true
    }
    Label {
        x: row.columns.deltaX
        width: row.columns.delta
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.name
        color: !row.planned ? Tokens.t2 : row.modelData.deltaGood ? Tokens.green.text : Tokens.red.text
        elide: Text.ElideNone
        // An en space between the word and the figure.
        text: Figures.joined([row.verdict, row.change], "\u2002")
        Accessible.ignored: true
    }
}
