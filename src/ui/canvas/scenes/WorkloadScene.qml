pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// Who has how much to do: a person in each row, with a bar of their load.
ArtScene {
    id: workload

    marks: scene.wlRows.length

    ColumnWidth {
        id: names

        rows: workload.scene.wlRows
        field: "name"
        style: Tokens.type.strong
    }
    ColumnWidth {
        id: roles

        rows: workload.scene.wlRows
        field: "role"
        style: Tokens.type.caption
    }
    ColumnWidth {
        id: loads

        rows: workload.scene.wlRows
        field: "pct"
        tabular: true
        style: Tokens.type.subheading
        least: 32
    }
    RowList {
        id: list

        anchors.top: parent.top
        anchors.topMargin: workload.headroom
        anchors.bottom: legend.top
        anchors.bottomMargin: 12
        art: workload
        leastRow: Tokens.fit(52)
        mostRow: 68
        model: SceneModel {
            rows: workload.scene.wlRows
        }
        delegate: WorkloadRow {
            art: workload
            height: list.rowHeight
            nameWidth: Math.max(workload.wide ? 236 : 0,
                Math.min(workload.inner * 0.34, 48 + Math.max(names.wanted, roles.wanted)))
            // With the sign.
            loadWidth: loads.wanted + 20
        }
    }
    SceneLegend {
        id: legend

        x: workload.side
        anchors.bottom: parent.bottom
        anchors.bottomMargin: workload.footroom
        width: workload.inner

        LegendEntry { color: Tokens.green.base; text: qsTr("under 90%") }
        LegendEntry { color: Tokens.amber.base; text: qsTr("90–100%") }
        LegendEntry { color: Tokens.red.base; text: qsTr("over 100%") }
    }
}
