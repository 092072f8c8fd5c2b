import QtQuick
import Kiv.Chat

// The files of a message, above its words.
Item {
    id: above

    required property feedRow row
    required property bool compact

    readonly property int indent: compact || row.mine ? 0 : 40
    readonly property int gap: row.mine ? (compact ? 16 : 20) : 0

    // The bubble below brings the gap along that stands over one's own words.
    implicitHeight: files.height + (row.last ? gap : 6)

    MessageFiles {
        id: files

        x: above.indent
        y: above.gap
        width: above.width - x
        layoutDirection: above.row.mine ? Qt.RightToLeft : Qt.LeftToRight
        files: above.row.files
    }
}
