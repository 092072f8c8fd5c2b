pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// Notes below a rule in the colour of their column.
Item {
    id: column

    required property briefCol modelData
    required property int index
    required property ColumnBoard board

    readonly property DataColor colors: board.art.dataColor(modelData.color)

    width: board.columnWidth
    height: board.height
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("%1, %2").arg(modelData.name).arg(modelData.count)

    FullLabel {
        y: 7
        width: count.x - 8
        style: Tokens.type.strong
        text: column.modelData.name
    }
    Label {
        id: count

        y: 9
        anchors.right: parent.right
        elide: Text.ElideNone
        style: Tokens.type.captionMedium
        color: Tokens.t3
        text: column.modelData.count
        Accessible.ignored: true
    }
    Rectangle {
        y: Tokens.fit(34)
        width: parent.width
        height: 2
        radius: 1
        color: column.colors.base
    }
    CardList {
        id: cards

        board: column.board
        column: column.index
        y: Tokens.fit(34) + 16
        width: parent.width
        height: parent.height - y
        spacing: 10
        model: SceneModel {
            rows: column.modelData.items
        }
        delegate: RetroCard {
            art: column.board.art
            place: cards.first + index
            width: cards.width
            ground: column.colors.tint
        }
    }
}
