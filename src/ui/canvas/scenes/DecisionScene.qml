pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// Two options, scored on the same criteria: bars grow from the middle towards their option.
ArtScene {
    id: decision

    readonly property int middle: narrow ? 16 : 176
    /// Too little room for two options side by side.
    readonly property bool stacked: inner < 440
    readonly property real cardWidth: stacked ? inner : (inner - middle) / 2

    marks: scene.criteria.length

    OptionCard {
        id: first

        x: decision.side
        y: decision.headroom
        width: decision.cardWidth
        letter: "A"
        name: decision.scene.optionA
        total: decision.scene.totalA
        colors: Tokens.violet
        better: decision.scene.better === Scene.Option.A
        even: decision.scene.tie
    }
    Label {
        visible: !decision.narrow && decision.scene.totalA !== ""
        anchors.verticalCenter: first.verticalCenter
        x: decision.side + decision.cardWidth
        width: decision.middle
        horizontalAlignment: Text.AlignHCenter
        style: Tokens.type.captionMedium
        color: Tokens.t3
        text: qsTr("Total")
    }
    OptionCard {
        id: second

        x: decision.stacked ? decision.side : decision.side + decision.cardWidth + decision.middle
        y: decision.stacked ? first.y + first.height + 8 : first.y
        width: decision.cardWidth
        mirrored: !decision.stacked
        letter: "B"
        name: decision.scene.optionB
        total: decision.scene.totalB
        colors: Tokens.blue
        better: decision.scene.better === Scene.Option.B
        even: decision.scene.tie
    }
    // No score is wider.
    TextMetrics {
        id: widest

        font.family: Tokens.tabularFamily
        font.pixelSize: Tokens.type.strong.size
        font.weight: Tokens.type.strong.weight
        text: decision.scene.scoreMost
    }
    RowList {
        id: rows

        art: decision
        anchors.top: second.bottom
        anchors.topMargin: decision.narrow ? 8 : 16
        anchors.bottom: outcome.visible ? outcome.top : parent.bottom
        anchors.bottomMargin: outcome.visible ? 20 : decision.footroom
        leastRow: Tokens.fit(decision.narrow ? 56 : 42)
        mostRow: decision.narrow ? 72 : 58
        model: SceneModel {
            rows: decision.scene.criteria
        }
        delegate: CriterionRow {
            art: decision
            height: rows.rowHeight
            most: Math.max(1, decision.scene.scoreMost)
            figureWidth: Math.max(20, Math.ceil(widest.width))
            middle: decision.middle
        }
    }
    Recommendation {
        id: outcome

        x: decision.side
        width: decision.inner
        anchors.bottom: parent.bottom
        anchors.bottomMargin: decision.footroom
        visible: title !== ""
        title: decision.scene.recTitle
        text: decision.scene.recText
        even: decision.scene.tie
    }
}
