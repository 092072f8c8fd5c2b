import QtQuick
import Kiv.Chat
import Kiv.Markdown
import Kiv.Tokens

BlockRow {
    id: block

    lead: 14

    Item {
        width: block.inner
        height: dot.visible ? dot.y + dot.height : 5

        Rectangle {
            width: parent.width
            height: 1
            color: Tokens.line
        }
        GrowingDot {
            id: dot

            objectName: "ruleDot"
            y: 16
            visible: block.row.growing
        }
    }
}
