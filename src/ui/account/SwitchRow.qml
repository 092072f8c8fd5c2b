import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store

// A setting that is on or off.
Item {
    id: row

    required property string name
    required property string detail
    required property AccountField value
    property alias fieldName: control.objectName

    implicitHeight: words.height + (reason.visible ? reason.height : 0)

    SettingRow {
        id: words

        width: parent.width
        height: implicitHeight
        name: row.name
        detail: row.detail
        trailing: 36 + (note.visible ? note.width + 12 : 0)

        SaveNote {
            id: note

            anchors.verticalCenter: parent.verticalCenter
            x: control.x - width - 12
            value: row.value
            label: row.name
        }
        Switch {
            id: control

            x: parent.width - width
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            onToggled: row.value.turn(checked)

            Binding on checked {
                value: row.value.on
            }
        }
    }
    ErrorLine {
        id: reason

        y: words.height
        width: parent.width
        text: row.value.error
    }
}
