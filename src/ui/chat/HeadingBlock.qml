import QtQuick
import Kiv.Chat
import Kiv.Markdown
import Kiv.Tokens

BlockRow {
    id: block

    readonly property int level: row.part.level

    lead: row.part.begins ? 14 : 0

    BlockWords {
        width: block.inner
        part: block.row.part
        growing: block.row.growing
        style: block.level === 1 ? (block.compact ? Tokens.type.cardTitle : Tokens.type.subheading)
            : block.level === 2 ? (block.compact ? Tokens.type.minorHeading : Tokens.type.cardTitle)
            : block.compact ? Tokens.type.strong : Tokens.type.minorHeading
        Accessible.role: Accessible.Heading
    }
}
