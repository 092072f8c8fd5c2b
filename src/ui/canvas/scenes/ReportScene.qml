pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// Headline figures as cards, and the highlights of the answer below them.
ArtScene {
    id: report

    readonly property int cards: scene.kpiCards.length
    readonly property int lines: scene.highlights.length

    marks: cards + lines
    onCurrentChanged: {
        if (current < cards)
            list.positionViewAtBeginning()
    }

    // The sheet may have scrolled since the focus was here.
    onActiveFocusChanged: if (activeFocus) reveal(list)

    ReportRows {
        id: list

        /// What the highlights share, when there is more than they need.
        readonly property real lineHeight: Math.max(Tokens.fit(40), Math.min(Tokens.fit(60), Math.floor((height - topMargin - headHeight) / Math.max(1, report.lines))))

        art: report
        // Room for the ring of a card.
        y: report.headroom - topMargin
        topMargin: 6
        height: report.height - y - report.footroom
        // Of any other index below 0 the view would make the first row the current one.
        currentIndex: Math.max(-1, report.current - report.cards)
        model: SceneModel {
            rows: report.scene.highlights
        }
        delegate: HighlightRow {
            art: report
            place: report.cards + index
            least: list.lineHeight
        }
    }
}
