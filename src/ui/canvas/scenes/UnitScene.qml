pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// The parts of a whole, and the figures beside them: a ring for few parts, one bar for many.
ArtScene {
    id: unit

    readonly property int parts: scene.ueRows.length
    readonly property int figures: scene.ueKpis.length
    readonly property bool ringed: wide && parts > 0 && parts <= 6
    /// Whether the figures have a column of their own.
    readonly property bool beside: wide && parts > 0 && figures > 0
    readonly property real partsWidth: beside ? inner - 300 : inner

    marks: parts + figures
    onCurrentChanged: {
        if (current >= parts)
            rows.positionViewAtEnd()
    }

    ColumnWidth {
        id: values

        rows: unit.scene.ueRows
        field: "value"
        tabular: true
        style: Tokens.type.line
        least: 64
    }
    Ring {
        id: ring

        x: unit.side
        anchors.verticalCenter: rows.verticalCenter
        visible: unit.ringed
        art: unit
        parts: unit.ringed ? unit.scene.ueRows : []
        total: unit.scene.coTotal
        unit: unit.scene.coTotalSub
    }
    WholeBar {
        id: whole

        x: unit.side
        y: unit.headroom
        width: unit.partsWidth
        visible: unit.parts > 0 && !unit.ringed
        art: unit
        parts: visible ? unit.scene.ueRows : []
    }
    UnitRows {
        id: rows

        readonly property real room: unit.height - unit.headroom - unit.footroom
        /// Beside the ring the rows stand in the middle of the height.
        readonly property real linesHeight: Math.min(room, unit.parts * Tokens.fit(52))
        readonly property real below: footerItem?.height ?? 0
        readonly property real lineHeight: Math.floor(Math.max(Tokens.fit(40), Math.min(Tokens.fit(52), (height - below) / Math.max(1, unit.parts))))

        art: unit
        focus: !unit.beside || unit.current < unit.parts
        currentIndex: unit.current < unit.parts ? unit.current : -1
        x: (unit.ringed ? unit.side + ring.width + 36 : unit.side) - 8
        y: unit.ringed ? unit.headroom + Math.round((room - linesHeight) / 2) : whole.visible ? whole.y + whole.height + 12 : unit.headroom
        width: unit.side + unit.partsWidth - x + (unit.beside ? 16 : unit.side)
        height: unit.ringed ? linesHeight : unit.height - y - unit.footroom
        model: SceneModel {
            rows: unit.scene.ueRows
        }
        delegate: UnitRow {
            art: unit
            width: unit.side + unit.partsWidth - rows.x - 8
            height: rows.lineHeight
            valueWidth: values.wanted
        }
    }
    FigureColumn {
        x: unit.side + unit.inner - width
        y: unit.headroom
        width: 260
        height: rows.room
        visible: unit.beside
        art: unit
    }
}
