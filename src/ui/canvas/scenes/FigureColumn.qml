pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Scene
import Kiv.Tokens

// The figures beside the parts, sharing the height.
ScrollArea {
    id: column

    readonly property int count: art.scene.ueKpis.length
    readonly property real cardHeight: Math.max(Tokens.fit(112), Math.floor((height - 12 * (count - 1)) / Math.max(1, count)))

    contentHeight: cards.height

    Column {
        id: cards

        width: parent.width
        spacing: 12

        Repeater {
            model: SceneModel {
                rows: column.art.scene.ueKpis
            }

            KpiCard {
                required property kpiCard modelData
                required property int index

                art: column.art
                place: column.art.scene.ueRows.length + index
                width: column.width
                height: column.cardHeight
                card: modelData
            }
        }
    }
}
