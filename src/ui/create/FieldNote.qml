import QtQuick
import Kiv.Controls
import Kiv.Tokens

// The line below a field: what is wrong with it, and how much of its limit is used.
Item {
    id: note

    property string error: ""
    property string count: ""

    implicitHeight: Tokens.fit(20)

    Label {
        y: 4
        width: parent.width - used.width - 12
        visible: text !== ""
        style: Tokens.type.caption
        color: Tokens.dangerText
        text: note.error
        Accessible.role: Accessible.AlertMessage
    }
    Label {
        id: used

        x: parent.width - width
        y: 4
        style: Tokens.type.caption
        tabular: true
        color: Tokens.t3
        text: note.count
    }
}
