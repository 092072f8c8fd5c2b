import QtQuick
import Kiv.Controls

// Rows that Up and Down go through.
Column {
    id: rows

    Keys.forwardTo: [keys]

    RowKeys {
        id: keys

        rows: rows
    }
}
