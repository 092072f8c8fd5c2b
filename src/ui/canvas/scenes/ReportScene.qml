pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// Headline figures as cards, and the highlights of the answer below them.
ArtScene {
    id: report

    readonly property int cards: scene.kpiCards.length
    readonly property int lines: scene.highlights.length
    readonly property int columns: !wide ? Math.min(cards, 2)
        : cards === 4 ? (inner < 1200 ? 2 : 4)
        : Math.min(cards, 3)
    readonly property real cardWidth: (inner - 12 * (columns - 1)) / Math.max(1, columns)
    readonly property int cardHeight: lines === 0 ? 148 : 118
    /// What the highlights share, when there is more than they need.
    readonly property real room: height - rows.y - highlights.y - 20
    readonly property real lineHeight: Math.max(40, Math.min(60, room / Math.max(1, lines)))

    marks: cards

    ScrollArea {
        anchors.fill: parent
        art: report
        contentHeight: rows.y + rows.height + 20

        Column {
            id: rows

            x: report.side
            y: report.headroom
            width: report.inner
            spacing: 20

            Grid {
                visible: report.cards > 0
                columns: Math.max(1, report.columns)
                spacing: 12

                Repeater {
                    model: report.scene.kpiCards

                    KpiCard {
                        required property kpiCard modelData
                        required property int index

                        art: report
                        place: index
                        width: report.cardWidth
                        height: report.cardHeight
                        card: modelData
                    }
                }
            }
            Label {
                visible: report.lines > 0
                style: Tokens.type.smallStrong
                text: qsTr("Highlights")
                Accessible.role: Accessible.Heading
            }
            Column {
                id: highlights

                topPadding: -16
                width: parent.width

                Repeater {
                    model: report.scene.highlights

                    Item {
                        id: line

                        required property string modelData
                        required property int index

                        width: report.inner
                        height: Math.max(report.lineHeight, words.height + 12)

                        Divider {
                            width: parent.width
                            visible: line.index > 0
                        }
                        Rectangle {
                            anchors.verticalCenter: parent.verticalCenter
                            width: 6
                            height: 6
                            radius: 3
                            color: Tokens.t3
                        }
                        Label {
                            id: words

                            x: 18
                            width: parent.width - x
                            anchors.verticalCenter: parent.verticalCenter
                            wrapMode: Text.Wrap
                            maximumLineCount: 2
                            text: line.modelData
                        }
                    }
                }
            }
        }
    }
}
