import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The columns of a budget from left to right: names, chart, plan, actual, delta. On a narrow sheet
// the plan goes under the name, and its column is 0 wide.
Item {
    id: columns

    required property ArtScene art

    readonly property int gap: art.narrow ? 12 : 20
    readonly property real name: names.wanted
    readonly property real chartX: name + gap
    readonly property real chart: planX - gap - chartX
    readonly property real planX: actualX - (plan === 0 ? 0 : gap + plan)
    readonly property real plan: art.narrow ? 0 : plans.wanted
    readonly property real actualX: deltaX - gap - actual
    readonly property real actual: actuals.wanted
    readonly property real deltaX: art.inner - delta
    // The longest word before a figure, and the space after it.
    readonly property real delta: Math.max(art.narrow ? 0 : 92, deltas.wanted + words.implicitWidth + 10)

    Label {
        id: words

        visible: false
        style: Tokens.type.name
        text: qsTr("no plan") + "\n" + qsTr("Over")
    }
    ColumnWidth {
        id: names

        rows: columns.art.scene.bgRows
        field: "name"
        style: Tokens.type.name
        least: columns.art.wide ? 148 : 72
        most: Math.max(72, columns.art.inner * 0.24)
    }
    ColumnWidth {
        id: plans

        rows: columns.art.scene.bgRows
        field: "plan"
        tabular: true
        style: Tokens.type.line
        least: columns.art.wide ? 80 : 40
        most: Math.max(80, columns.art.inner * 0.16)
    }
    ColumnWidth {
        id: actuals

        rows: columns.art.scene.bgRows
        field: "actual"
        tabular: true
        style: Tokens.type.strong
        least: columns.art.wide ? 80 : 44
        most: Math.max(80, columns.art.inner * 0.18)
    }
    ColumnWidth {
        id: deltas

        rows: columns.art.scene.bgRows
        field: "delta"
        tabular: true
        style: Tokens.type.name
    }
}
