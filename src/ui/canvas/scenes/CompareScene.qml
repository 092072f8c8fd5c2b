pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// A table: names, and a column for each thing that is compared.
ArtScene {
    id: compare

    readonly property real offset: sideways.visible ? sideways.position * columns.cellsWidth : 0

    function moveCells(by: real) {
        sideways.position = Math.max(0, Math.min(1 - sideways.size, sideways.position + by / columns.cellsWidth))
    }

    marks: scene.cpRows.length

    CompareColumns {
        id: columns

        scene: compare.scene
        width: compare.inner
        font: measured.font
    }
    Label {
        id: measured

        visible: false
        tabular: true
        style: Tokens.type.name
    }
    Item {
        id: head

        x: compare.side
        y: compare.headroom
        width: compare.inner
        height: Tokens.fit(36)

        FullLabel {
            anchors.verticalCenter: parent.verticalCenter
            width: columns.nameWidth
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: columns.nameTitle
            Accessible.ignored: text === ""
        }
        Item {
            x: columns.nameWidth
            width: parent.width - x
            height: parent.height
            clip: true

            Repeater {
                model: columns.columns

                FullLabel {
                    required property compareColumn modelData

                    x: modelData.x - compare.offset
                    y: Math.round((head.height - height) / 2)
                    width: modelData.width
                    horizontalAlignment: modelData.numeric ? Text.AlignRight : Text.AlignLeft
                    style: Tokens.type.captionStrong
                    color: Tokens.t3
                    text: modelData.title
                    Accessible.ignored: text === ""
                }
            }
        }
        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
            color: Tokens.line2
        }
    }
    RowList {
        id: list

        objectName: "compareRows"
        anchors.top: head.bottom
        anchors.bottom: sideways.visible ? sideways.top : parent.bottom
        anchors.bottomMargin: 8
        art: compare
        leastRow: Tokens.fit(44)
        mostRow: 56
        Keys.onLeftPressed: event => {
            event.accepted = sideways.visible
            compare.moveCells(-Tokens.fit(120))
        }
        Keys.onRightPressed: event => {
            event.accepted = sideways.visible
            compare.moveCells(Tokens.fit(120))
        }
        model: SceneModel {
            rows: compare.scene.cpRows
        }
        delegate: CompareRow {
            art: compare
            height: list.rowHeight
            layout: columns
            offset: compare.offset
        }
    }
    ScrollBar {
        id: sideways

        anchors.bottom: parent.bottom
        x: compare.side + columns.nameWidth
        width: compare.inner - columns.nameWidth
        orientation: Qt.Horizontal
        policy: T.ScrollBar.AlwaysOn
        size: width / Math.max(1, columns.cellsWidth)
    }
    WheelHandler {
        orientation: Qt.Horizontal
        onWheel: event => compare.moveCells(-event.angleDelta.x / 2)
    }
}
