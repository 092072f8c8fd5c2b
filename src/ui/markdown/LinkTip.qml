import QtQuick
import Kiv.Controls

// Where a link under the pointer leads to.
Item {
    id: tip

    required property string link
    required property point place
    required property int line

    property point shownAt: Qt.point(0, 0)

    x: shownAt.x
    y: shownAt.y - line / 2
    height: line
    onLinkChanged: shownAt = place

    TipLoader {
        active: tip.link !== ""
        text: tip.link
    }
}
