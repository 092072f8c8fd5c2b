pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Markdown
import Kiv.Tokens

// The words of a part of a block: they can be selected and copied, and their links opened.
TextEdit {
    id: words

    required property markdownPart part
    required property TypeStyle style
    property bool plain: false
    property bool growing: false
    /// What a table can spread over before it scrolls.
    property alias available: filler.available
    readonly property alias tops: filler.tops
    readonly property alias naturalWidth: filler.naturalWidth
    readonly property alias unwrappedWidth: filler.unwrappedWidth

    function copyCells() {
        filler.copyCells(selectionStart, selectionEnd)
    }

    // A document puts what a line has beyond its letters above them: half of it goes below.
    topPadding: -Math.round(style.lead)
    bottomPadding: -topPadding
    readOnly: true
    selectByMouse: true
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    font.family: Tokens.family
    font.pixelSize: style.size
    font.weight: style.weight
    font.letterSpacing: style.tracking
    color: Tokens.t1
    selectionColor: Tokens.selection
    selectedTextColor: Tokens.t1
    onLinkActivated: link => LinkOpener.followed(link)

    HoverHandler {
        id: pointer

        cursorShape: words.hoveredLink !== "" ? Qt.PointingHandCursor : Qt.IBeamCursor
    }
    BlockText {
        id: filler

        z: -1
        y: words.topPadding
        width: words.width
        height: words.height
        document: words.textDocument
        part: words.part
        plain: words.plain
        font: words.font
        lineHeight: words.style.line
        smallSize: Tokens.type.code.size
        linkColor: Tokens.accentText
        faintColor: Tokens.t3
        foundColor: Tokens.found
        foundEdge: Tokens.foundEdge
    }
    Repeater {
        model: filler.chips.length

        Rectangle {
            required property int index

            readonly property rect place: filler.chips[index] ?? Qt.rect(0, 0, 0, 0)

            z: -2
            x: place.x
            y: place.y + words.topPadding
            width: place.width
            height: place.height
            radius: Tokens.radiusSmall
            color: Tokens.sunken
        }
    }
    GrowingDot {
        visible: words.growing
        x: Math.min(filler.end.x + (words.length > 0 ? 5 : 0), words.width - width)
        y: words.topPadding + filler.end.y + (filler.end.height - height) / 2
    }
    LinkTip {
        link: words.hoveredLink
        place: pointer.point.position
        line: words.style.line
    }
}
