import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// A field of the profile that is chosen from a list.
Item {
    id: entry

    required property string label
    required property AccountField value
    required property int kind
    property string placeholder: qsTr("Not set")
    property alias fieldName: button.objectName

    implicitWidth: 240
    implicitHeight: button.y + button.height + (reason.visible ? reason.height + 4 : 0)

    ChoiceModel {
        id: options

        kind: entry.kind
        language: Qt.uiLanguage
        value: entry.value.text
    }
    Label {
        id: heading

        style: Tokens.type.smallMedium
        text: entry.label
    }
    ChoiceButton {
        id: button

        y: heading.height + 6
        width: parent.width
        label: entry.label
        text: options.label
        placeholder: entry.placeholder
        failed: entry.value.state === Store.SaveState.Failed
        trailing: note.visible ? note.width + 8 : 0
        onClicked: list.open()

        SaveNote {
            id: note

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width - 36
            value: entry.value
            label: entry.label
        }
        ChoiceList {
            id: list

            width: Math.max(button.width, 220)
            choices: options
            current: entry.value.text
            onPicked: value => entry.value.choose(value)
        }
    }
    ErrorLine {
        id: reason

        y: button.y + button.height + 4
        width: parent.width
        text: entry.value.error
    }
}
