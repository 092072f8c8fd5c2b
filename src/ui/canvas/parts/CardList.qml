import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The cards of a column, which scrolls by itself.
ListView {
    required property ColumnBoard board
    required property int column

    readonly property int first: board.groups.first(column)

    currentIndex: focus ? board.art.current - first : -1
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    clip: contentHeight > height
    focus: board.currentIndex === column
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration

    T.ScrollBar.vertical: ScrollBar {}
}
