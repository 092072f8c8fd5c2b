pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A table: names, and a column for each thing that is compared.
FocusScope {
    id: compare

    required property sceneOut scene
    required property int side

    readonly property real inner: width - 2 * side
    readonly property real rowHeight: Math.max(44, Math.min(56, list.height / Math.max(1, list.count)))
    readonly property real offset: sideways.visible ? sideways.position * columns.cellsWidth : 0

    CompareColumns {
        id: columns

        scene: compare.scene
        width: compare.inner
        font: measured.font
    }
    Label {
        id: measured

        visible: false
        style: Tokens.type.name
    }
    Item {
        id: head

        x: compare.side
        y: compare.side === 32 ? 24 : 16
        width: compare.inner
        height: 36

        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: columns.nameWidth
            style: Tokens.type.captionStrong
            color: Tokens.t3
            text: columns.nameTitle
        }
        Item {
            x: columns.nameWidth
            width: parent.width - x
            height: parent.height
            clip: true

            Repeater {
                model: columns.columns

                Label {
                    required property compareColumn modelData

                    x: modelData.x - compare.offset
                    y: Math.round((head.height - height) / 2)
                    width: modelData.width
                    horizontalAlignment: modelData.numeric ? Text.AlignRight : Text.AlignLeft
                    style: Tokens.type.captionStrong
                    color: Tokens.t3
                    text: modelData.title
                }
            }
        }
        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
            color: Tokens.line2
        }
    }
    ListView {
        id: list

        objectName: "compareRows"
        anchors.top: head.bottom
        anchors.bottom: sideways.visible ? sideways.top : parent.bottom
        anchors.bottomMargin: 8
        x: compare.side
        width: compare.inner + compare.side
        model: compare.scene.cpRows
        reuseItems: true
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.Table
        Accessible.name: compare.scene.title

        T.ScrollBar.vertical: ScrollBar {}

        delegate: CompareRow {
            id: row

            required property cpRow modelData
            required property int index

            width: compare.inner
            height: compare.rowHeight
            values: modelData
            layout: columns
            offset: compare.offset

            Divider {
                width: parent.width
                visible: row.index > 0
            }
            FocusRing {
                anchors.margins: 2
                visible: row.ListView.isCurrentItem && list.activeFocus
            }
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
        onWheel: event => sideways.position = Math.max(0, Math.min(1 - sideways.size,
            sideways.position - event.angleDelta.x / columns.cellsWidth / 2))
    }
}
