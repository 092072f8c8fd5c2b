pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A column of cards on a ground of its own.
Rectangle {
    id: column

    required property briefCol modelData
    required property int index
    required property ColumnBoard board

    width: board.columnWidth
    height: board.height
    radius: Tokens.radiusCard
    color: Tokens.inset
    border.width: 1
    border.color: Tokens.line
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("%1, %2").arg(modelData.name).arg(modelData.count)

    Rectangle {
        x: 14
        anchors.verticalCenter: name.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: column.board.art.dataColor(column.modelData.color).base
    }
    FullLabel {
        id: name

        x: 30
        y: 12
        width: count.x - x - 8
        style: Tokens.type.smallStrong
        text: column.modelData.name
    }
    Label {
        id: count

        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: name.verticalCenter
        elide: Text.ElideNone
        style: Tokens.type.caption
        color: Tokens.t3
        text: column.modelData.count
        Accessible.ignored: true
    }
    CardList {
        id: cards

        board: column.board
        column: column.index
        x: 10
        y: Tokens.fit(42)
        width: parent.width - 20
        height: parent.height - y - 10
        spacing: 8
        model: SceneModel {
            rows: column.modelData.items
        }
        delegate: BriefCard {
            art: column.board.art
            place: cards.first + index
            width: cards.width
        }
    }
}
