import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store

// One line of the profile: saved when the person leaves it.
Item {
    id: entry

    required property string label
    required property AccountField value
    property string placeholder: ""
    property string fieldName: ""

    implicitWidth: 240
    implicitHeight: input.height + (reason.visible ? reason.height + 4 : 0)
    Keys.onEscapePressed: event => {
        event.accepted = value.state === Store.SaveState.Edited || value.state === Store.SaveState.Failed
        if (event.accepted)
            value.discard()
    }

    Field {
        id: input

        width: parent.width
        label: entry.label
        field.objectName: entry.fieldName
        field.placeholderText: entry.placeholder
        field.trailing: note.visible ? note.width + 8 : 0
        field.failed: entry.value.state === Store.SaveState.Failed
        field.onTextEdited: entry.value.edit(field.text)
        field.onEditingFinished: entry.value.choose(field.text.trim())

        Binding {
            target: input.field
            property: "text"
            value: entry.value.text
        }
        SaveNote {
            id: note

            parent: input.field
            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width - 12
            value: entry.value
            label: entry.label
        }
    }
    ErrorLine {
        id: reason

        y: input.height + 4
        width: parent.width
        text: entry.value.error
    }
}
