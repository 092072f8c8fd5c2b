import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The rows of a scene. They share the height within limits, then they scroll; only those in view are
// made. What stays above or below them is anchored to the list.
ListView {
    required property ArtScene art
    /// For rows of one height.
    property int leastRow: 0
    property int mostRow: 0

    /// The height of a row; a fraction would blur its line.
    readonly property real rowHeight: Math.floor(Math.max(leastRow, Math.min(mostRow, height / Math.max(1, count))))

    // Room for the ring of a row; the scroll bar stands in the padding.
    x: art.side - 8
    width: art.inner + art.side + 8
    currentIndex: art.current
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    clip: contentHeight > height
    focus: true
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration

    T.ScrollBar.vertical: ScrollBar {}
}
