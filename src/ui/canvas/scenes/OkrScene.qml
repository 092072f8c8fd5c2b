pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// Objectives with their scores, each beside its key results.
ArtScene {
    id: okr

    readonly property real headWidth: wide ? Math.min(392, inner * 0.42) : narrow ? 0 : inner * 0.4
    readonly property real titleWidth: Math.min(256, (inner - (narrow ? 0 : headWidth + 40)) * (wide ? 0.48 : 0.42))
    /// Titles that do not fit take two lines.
    readonly property int resultHeight: Tokens.fit(titles.wanted > titleWidth ? 46 : 38)
    /// Height that the rows do not need.
    readonly property real spare: Math.max(0, list.height - results.count * resultHeight - list.count * 30)

    marks: results.count

    ResultIndex {
        id: results

        objectives: okr.scene.okObjs
    }
    ColumnWidth {
        id: titles

        rows: results.results
        field: "title"
        style: Tokens.type.small
    }
    RowList {
        id: list

        anchors.top: parent.top
        anchors.topMargin: okr.headroom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: okr.footroom
        art: okr
        currentIndex: results.objectiveOf(okr.current)
        model: SceneModel {
            rows: okr.scene.okObjs
        }
        delegate: ObjectiveRow {
            art: okr
            first: results.first(index)
            headWidth: okr.headWidth
            titleWidth: okr.titleWidth
            resultHeight: okr.resultHeight
            // By the number of results, but no row falls apart.
            spare: above ? 0 : Math.floor(Math.min(50, okr.spare * count / Math.max(1, results.count)))
            seenFrom: list.contentY
            seenHeight: list.height
        }
    }
    Connections {
        target: okr

        function onMarkedChanged() {
            okr.reveal(list)
        }
    }
}
