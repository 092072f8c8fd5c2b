import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// Columns of cards. Up to four share the width; where that leaves too little for each, they scroll
// sideways. Left and Right go from column to column.
ListView {
    id: board

    required property ArtScene art

    readonly property int least: 220
    readonly property int shared: Math.max(1, Math.min(count, 4))
    readonly property real columnWidth: Math.max(least, Math.floor((art.inner - spacing * (shared - 1)) / shared))
    readonly property MarkGroups groups: MarkGroups {
        scene: board.art.scene
    }

    x: art.side
    width: contentWidth > art.inner ? art.inner + art.side : art.inner
    orientation: Qt.Horizontal
    currentIndex: groups.groupOf(art.current)
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    clip: contentWidth > width
    focus: true
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration

    T.ScrollBar.horizontal: ScrollBar {
        parent: board.art
        x: board.x
        y: board.y + board.height
        width: board.art.inner
        policy: T.ScrollBar.AlwaysOn
    }

    Keys.onLeftPressed: art.go(groups.beside(art.current, -1))
    Keys.onRightPressed: art.go(groups.beside(art.current, 1))
}
