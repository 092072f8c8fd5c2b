import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Markdown
import Kiv.Tokens

// Code scrolls sideways in its frame.
BlockRow {
    id: block

    signal copyRequested()

    FrameSlice {
        width: block.inner
        height: scroller.y + scroller.height
        begins: block.row.part.begins
        ends: block.row.part.ends
        radius: Tokens.radiusBlock
        color: Tokens.code
        edge: Tokens.line
    }
    CodeHead {
        id: head

        x: 1
        width: block.inner - 2
        visible: block.row.part.begins
        onCopyRequested: block.copyRequested()
    }
    Flickable {
        id: scroller

        readonly property int upper: block.row.part.begins ? 12 : 0
        readonly property int lower: block.row.part.ends ? 12 : 0

        x: 1
        y: block.row.part.begins ? head.height : 0
        width: block.inner - 2
        height: upper + words.height + lower
        contentWidth: words.width + 26
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
        clip: interactive

        T.ScrollBar.horizontal: ScrollBar {}

        BlockWords {
            id: words

            x: 13
            y: scroller.upper
            width: Math.max(scroller.width - 26, unwrappedWidth)
            part: block.row.part
            growing: block.row.growing
            style: Tokens.type.code
            wrapMode: TextEdit.NoWrap
            font.family: Appearance.codeFamily
        }
    }
}
