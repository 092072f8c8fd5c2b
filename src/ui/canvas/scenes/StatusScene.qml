pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// Where work stands: a bar for each stream, with its target.
ArtScene {
    id: status

    // More than a hundred per cent shows as more, up to twice the track.
    readonly property real full: Math.max(100, Math.min(200, Math.max(shares.highest, targets.highest)))

    marks: scene.streams.length

    RowColumn {
        id: shares

        rows: status.scene.streams
        field: "pct"
    }
    RowColumn {
        id: targets

        rows: status.scene.streams
        field: "target"
    }
    ColumnWidth {
        id: figures

        rows: status.scene.streams
        field: "pct"
        tabular: true
        style: Tokens.type.heading
        least: 36
    }
    ColumnWidth {
        id: names

        rows: status.scene.streams
        field: "name"
        style: Tokens.type.rowTitle
    }
    ColumnWidth {
        id: notes

        rows: status.scene.streams
        field: "note"
        style: Tokens.type.small
    }
    Label {
        id: verdicts

        visible: false
        style: Tokens.type.captionMedium
        text: qsTr("On track") + "\n" + qsTr("Behind")
    }
    Label {
        id: summary

        x: status.side
        y: status.headroom
        width: status.inner
        height: text === "" ? 0 : Tokens.fit(24)
        style: Tokens.type.smallStrong
        text: status.scene.statusSummary
    }
    RowList {
        id: list

        anchors.top: summary.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: status.footroom
        art: status
        leastRow: Tokens.fit(status.narrow ? 60 : 56)
        mostRow: 88
        model: SceneModel {
            rows: status.scene.streams
        }
        delegate: StatusRow {
            art: status
            height: list.rowHeight
            nameWidth: Math.max(status.wide ? 296 : 0,
                Math.min(status.inner * 0.32, Math.max(names.wanted, notes.wanted)))
            // With the sign of per cent.
            figureWidth: figures.wanted + Tokens.fit(22)
            measured: targets.highest >= 0
            full: status.full
            // With the sign.
            verdictWidth: verdicts.implicitWidth + 36
        }
    }
}
