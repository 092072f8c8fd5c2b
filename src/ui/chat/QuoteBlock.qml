import QtQuick
import Kiv.Chat
import Kiv.Markdown
import Kiv.Tokens

BlockRow {
    id: block

    Rectangle {
        width: 3
        height: words.height + 2
        color: Tokens.line2
    }
    BlockWords {
        id: words

        x: 17
        y: 1
        width: block.inner - x
        part: block.row.part
        growing: block.row.growing
        style: block.style
        color: Tokens.t2
    }
}
