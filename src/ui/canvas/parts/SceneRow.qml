import QtQuick
import Kiv.Canvas
import Kiv.Controls

// A row of a RowList: a line parts it from the one above.
MarkArea {
    id: row

    required property int index

    /// How much of their lengths the row's marks have.
    readonly property real grown: art.entrance.grown(index)

    x: 8
    place: index
    width: art.inner
    ringX: -6
    ringY: 3

    Divider {
        width: parent.width
        visible: row.index > 0
    }
}
