import QtQuick
import Kiv.Canvas
import Kiv.Controls

// How wide a column of words has to be: as the widest of them, within limits.
Label {
    id: measure

    property alias rows: column.rows
    property alias field: column.field
    property real least: 0
    property real most: Infinity

    readonly property real wanted: Math.max(least, Math.min(most, column.widest + 1))

    visible: false

    RowColumn {
        id: column

        font: measure.font
    }
}
