pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The sheet before its scene: shapes where the question makes something likely.
Item {
    id: sheet

    required property int shape

    readonly property int side: Tokens.sheetSide(width)
    readonly property real inner: width - 2 * side

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusSheet
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line
    }
    Item {
        x: sheet.side
        y: 28
        width: sheet.inner
        height: parent.height - 28 - 64
        clip: true

        // One breath for all of them.
        SequentialAnimation on opacity {
            running: sheet.visible && !Tokens.reducedMotion
            loops: Animation.Infinite

            NumberAnimation { to: 0.55; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
            NumberAnimation { to: 1; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
        }

        Skeleton {
            y: 6
            width: Math.min(420, sheet.inner * 0.58)
            height: 18
        }
        Skeleton {
            y: 38
            width: Math.min(280, sheet.inner * 0.38)
        }
        Grid {
            id: cards

            y: 78
            visible: sheet.shape === Store.SkeletonShape.Cards
            columns: sheet.inner < Tokens.wideBody ? 2 : 3
            spacing: 12

            Repeater {
                model: cards.visible ? 6 : 0

                Rectangle {
                    width: (sheet.inner - 12 * (cards.columns - 1)) / cards.columns
                    height: 118
                    radius: Tokens.radiusCard
                    color: "transparent"
                    border.width: 1
                    border.color: Tokens.line

                    Skeleton { x: 18; y: 20; width: parent.width * 0.44; height: 10 }
                    Skeleton { x: 18; y: 46; width: parent.width * 0.38; height: 20 }
                    Skeleton { x: 18; y: 82; width: 72; height: 20 }
                }
            }
        }
        Column {
            id: rows

            y: sheet.shape === Store.SkeletonShape.Cards ? 352 : 96
            visible: sheet.shape === Store.SkeletonShape.Rows || sheet.shape === Store.SkeletonShape.Cards

            Repeater {
                model: rows.visible ? [0.32, 0.24, 0.38, 0.28, 0.34, 0.22] : []

                Item {
                    required property real modelData
                    required property int index

                    width: sheet.inner
                    height: 56

                    Divider { width: parent.width; visible: parent.index > 0 }
                    Skeleton { anchors.verticalCenter: parent.verticalCenter; width: parent.width * parent.modelData }
                    Skeleton {
                        anchors.verticalCenter: parent.verticalCenter
                        anchors.right: parent.right
                        visible: sheet.shape === Store.SkeletonShape.Rows
                        width: 72
                    }
                }
            }
        }
        Row {
            id: lanes

            y: 78
            visible: sheet.shape === Store.SkeletonShape.Board
            spacing: 12

            Repeater {
                model: lanes.visible ? [4, 3, 2] : []

                Rectangle {
                    id: lane

                    required property int modelData

                    width: (sheet.inner - 24) / 3
                    height: 96 + modelData * 84
                    radius: Tokens.radiusCard
                    color: Tokens.inset

                    Skeleton { x: 16; y: 18; width: 96 }

                    Column {
                        x: 10
                        y: 48
                        spacing: 8

                        Repeater {
                            model: lane.modelData

                            Skeleton { width: lane.width - 20; height: 72; radius: Tokens.radiusBlock }
                        }
                    }
                }
            }
        }
        Row {
            id: bars

            visible: sheet.shape === Store.SkeletonShape.Plot
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            spacing: 24

            Repeater {
                model: bars.visible ? [0.52, 0.68, 0.44, 0.8, 0.6, 0.92, 0.74] : []

                Skeleton {
                    required property real modelData

                    anchors.bottom: parent?.bottom
                    width: (sheet.inner - 144) / 7
                    height: (sheet.height - 280) * modelData
                }
            }
        }
    }
    Divider {
        y: parent.height - 44
        width: parent.width
    }
    Skeleton {
        x: sheet.side
        y: parent.height - 27
        width: 128
        height: 9
    }
    Skeleton {
        x: parent.width - width - sheet.side
        y: parent.height - 27
        width: 108
        height: 9
    }
}
