import QtQuick
import QtQuick.Templates as T
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// Scrolls what is higher than the scene; a mark that the keys reach comes into view.
Flickable {
    id: area

    required property ArtScene art

    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration
    clip: contentHeight > height
    focus: true

    T.ScrollBar.vertical: ScrollBar {}

    Connections {
        target: area.art

        function onMarkedChanged() {
            area.art.reveal(area)
        }
    }
}
