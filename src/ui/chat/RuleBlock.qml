import QtQuick
import Kiv.Chat
import Kiv.Tokens

BlockRow {
    id: block

    lead: 14

    Item {
        width: block.inner
        height: 5

        Rectangle {
            width: parent.width
            height: 1
            color: Tokens.line
        }
    }
}
