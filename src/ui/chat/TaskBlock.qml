pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Icons
import Kiv.Markdown
import Kiv.Tokens

BlockRow {
    id: block

    lead: row.part.begins ? 10 : row.part.goesOn ? 0 : 4

    BlockWords {
        id: words

        width: block.inner
        part: block.row.part
        growing: block.row.growing
        style: block.style

        Repeater {
            model: block.row.part.done.length

            Rectangle {
                id: box

                required property int index

                readonly property bool done: block.row.part.done[index] ?? false

                visible: index > 0 || !block.row.part.goesOn
                y: Math.round((words.tops[index] ?? 0) + (words.style.line - height) / 2)
                width: 16
                height: 16
                radius: Tokens.radiusSmall
                color: done ? Tokens.accent : "transparent"
                border.width: done ? 0 : 1.5
                border.color: Tokens.control
                Accessible.role: Accessible.CheckBox
                Accessible.name: block.row.part.taskWords(index)
                Accessible.checked: done
                Accessible.readOnly: true

                Icon {
                    anchors.centerIn: parent
                    visible: box.done
                    name: "check"
                    size: 12
                    color: Tokens.accentInk
                }
            }
        }
    }
}
