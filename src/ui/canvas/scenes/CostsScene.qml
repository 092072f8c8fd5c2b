pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// What things cost: the total with its parts in one bar, and a row for each of them.
ArtScene {
    id: costs

    /// From the least to the largest bar, zero among them; in per cent of the largest amount.
    readonly property real lowest: Math.min(0, shares.lowest)
    readonly property real span: Math.max(1, Math.max(0, shares.highest) - lowest)

    marks: scene.coRows.length

    RowColumn {
        id: shares

        rows: costs.scene.coRows
        field: "pct"
    }
    ColumnWidth {
        id: names

        rows: costs.scene.coRows
        field: "name"
        style: Tokens.type.name
    }
    ColumnWidth {
        id: notes

        rows: costs.scene.coRows
        field: "sub"
        style: Tokens.type.small
    }
    ColumnWidth {
        id: amounts

        rows: costs.scene.coRows
        field: "amount"
        tabular: true
        style: Tokens.type.strong
        least: costs.narrow ? 56 : 88
        most: Math.max(88, costs.inner * 0.3)
    }
    Item {
        id: head

        x: costs.side
        y: costs.headroom
        width: costs.inner
        height: costs.scene.coTotal === "" ? 0 : parts.y + (parts.visible ? parts.height + 16 : 4)
        visible: costs.scene.coTotal !== ""

        Label {
            id: total

            width: Math.min(implicitWidth, parent.width - word.width - 10)
            style: Tokens.type.figureLarge
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 14
            elide: Text.ElideNone
            text: costs.scene.coTotal
        }
        Label {
            id: word

            x: total.width + 10
            anchors.baseline: total.baseline
            color: Tokens.t2
            text: qsTr("total")
        }
        Label {
            id: note

            readonly property bool beside: word.x + word.width + 16 + implicitWidth < head.width

            x: beside ? head.width - width : 0
            y: beside ? Tokens.fit(18) : Tokens.fit(40)
            width: Math.min(implicitWidth, head.width)
            style: Tokens.type.caption
            color: Tokens.t3
            text: costs.scene.coTotalSub
        }
        StackedBar {
            id: parts

            y: Tokens.fit(note.beside ? 50 : 68)
            width: parent.width
            visible: costs.scene.coSegs.length > 0
            art: costs
            parts: costs.scene.coSegs
        }
    }
    RowList {
        id: list

        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: costs.footroom
        art: costs
        leastRow: Tokens.fit(44)
        mostRow: 64
        model: SceneModel {
            rows: costs.scene.coRows
        }
        delegate: CostRow {
            art: costs
            height: list.rowHeight
            nameWidth: Math.max(costs.wide ? 274 : 0, Math.min(costs.inner * 0.34, 31 + names.wanted + notes.wanted))
            amountWidth: amounts.wanted
            full: 100 / costs.span
            zero: -costs.lowest / costs.span
            whole: costs.scene.coSegs.length > 0 ? shares.sum : 0
        }
    }
}
