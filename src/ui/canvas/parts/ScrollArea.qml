import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// Scrolls what is higher than the scene; a mark that the keys reach comes into view.
Flickable {
    id: area

    required property ArtScene art

    function reveal(mark: Item) {
        const top = mark.mapToItem(contentItem, 0, 0).y
        contentY = Math.max(top + mark.height + 8 - height, Math.min(top - 8, contentY))
        returnToBounds()
    }

    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration
    clip: contentHeight > height
    focus: true

    T.ScrollBar.vertical: ScrollBar {}

    Connections {
        target: area.art

        function onMarkedChanged() {
            if (area.art.marked)
                area.reveal(area.art.marked)
        }
    }
}
