import Kiv.Chat
import Kiv.Markdown

BlockRow {
    id: block

    BlockWords {
        width: block.inner
        part: block.row.part
        growing: block.row.growing
        style: block.style
    }
}
