pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// The cards of a report, and the word over its highlights.
Item {
    id: head

    // The head of a list lies in its content.
    readonly property RowList list: parent?.parent as RowList
    readonly property ArtScene art: list?.art ?? null
    readonly property real inner: art?.inner ?? 0
    readonly property int cards: art?.scene.kpiCards.length ?? 0
    readonly property int lines: art?.scene.highlights.length ?? 0
    readonly property int columns: !(art?.wide ?? true) ? Math.min(cards, 2)
        : cards === 4 ? (inner < 1200 ? 2 : 4)
        : Math.min(cards, 3)
    readonly property real cardWidth: (inner - 12 * (columns - 1)) / Math.max(1, columns)

    x: 8
    width: inner
    height: lines === 0 ? grid.height : title.y + title.height + 4

    Grid {
        id: grid

        columns: Math.max(1, head.columns)
        spacing: 12

        Repeater {
            model: SceneModel {
                rows: head.art?.scene.kpiCards ?? []
            }

            KpiCard {
                required property kpiCard modelData
                required property int index

                art: head.art
                place: index
                width: head.cardWidth
                height: Tokens.fit(head.lines === 0 ? 148 : 118)
                card: modelData
            }
        }
    }
    Label {
        id: title

        y: head.cards === 0 ? 0 : grid.height + 20
        visible: head.lines > 0
        style: Tokens.type.smallStrong
        text: qsTr("Highlights")
    }
}
