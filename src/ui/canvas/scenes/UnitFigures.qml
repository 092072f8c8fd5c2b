pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Scene
import Kiv.Tokens

// The figures beside the parts, below their rows.
Item {
    id: figures

    // The foot of a list lies in its content.
    readonly property RowList list: parent?.parent as RowList
    readonly property ArtScene art: list?.art ?? null
    /// On a wide sheet they have a column of their own beside the parts.
    readonly property bool shown: art !== null && !(art.wide && art.scene.ueRows.length > 0)
    readonly property int count: shown ? art?.scene.ueKpis.length ?? 0 : 0
    readonly property int columns: Math.max(1, Math.min(count, art?.wide ? 3 : 2))
    readonly property real cardWidth: ((art?.inner ?? 0) - 12 * (columns - 1)) / columns

    x: 8
    width: art?.inner ?? 0
    height: count === 0 ? 0 : grid.y + grid.height

    Grid {
        id: grid

        y: (figures.list?.count ?? 0) > 0 ? 16 : 0
        columns: figures.columns
        spacing: 12

        Repeater {
            model: SceneModel {
                rows: figures.shown ? figures.art?.scene.ueKpis ?? [] : []
            }

            KpiCard {
                required property kpiCard modelData
                required property int index

                art: figures.art
                place: (figures.art?.scene.ueRows.length ?? 0) + index
                width: figures.cardWidth
                height: Tokens.fit(118)
                card: modelData
            }
        }
    }
}
