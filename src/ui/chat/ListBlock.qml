import Kiv.Chat
import Kiv.Markdown

// Items with a dot or with the figures that they were written with.
BlockRow {
    id: block

    lead: row.part.begins ? 10 : row.part.goesOn ? 0 : 4

    BlockWords {
        width: block.inner
        part: block.row.part
        growing: block.row.growing
        style: block.style
    }
}
