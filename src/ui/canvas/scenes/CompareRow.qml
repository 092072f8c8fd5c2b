pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// One row of a comparison: the name stays, the cells scroll sideways beside it.
SceneRow {
    id: row

    required property cpRow modelData
    required property CompareColumns layout
    required property real offset

    /// The cell under the pointer, where it is cut short.
    property string pointed: ""

    label: modelData.name
    // Who goes by the keys has no pointer to ask for what is cut short.
    tip: pointed !== "" ? pointed : activeFocus && layout.cut ? layout.spoken(modelData) : label
    Accessible.name: layout.spoken(modelData)

    Label {
        anchors.verticalCenter: parent.verticalCenter
        width: row.layout.nameWidth
        style: Tokens.type.name
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: row.modelData.name
        Accessible.ignored: true
    }
    Item {
        x: row.layout.nameWidth
        width: row.width - x
        height: parent.height
        clip: row.layout.cellsWidth > width

        Repeater {
            model: row.layout.columns

            Label {
                id: words

                required property compareColumn modelData

                readonly property string cell: row.modelData.cells[modelData.cell] ?? ""

                x: modelData.x - row.offset
                y: Math.round((row.height - height) / 2)
                width: modelData.width
                horizontalAlignment: modelData.numeric ? Text.AlignRight : Text.AlignLeft
                style: Tokens.type.line
                tabular: modelData.numeric
                color: modelData.numeric ? Tokens.t1 : Tokens.t2
                text: cell === "" ? "—" : cell
                Accessible.ignored: true

                HoverHandler {
                    enabled: words.truncated
                    onHoveredChanged: {
                        // The next cell may have been entered before this one was left.
                        if (hovered)
                            row.pointed = words.cell
                        else if (row.pointed === words.cell)
                            row.pointed = ""
                    }
                }
            }
        }
    }
}
