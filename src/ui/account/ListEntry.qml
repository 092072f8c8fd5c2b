pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// A list of words as chips in a field: return or a comma adds one, a cross drops it.
Item {
    id: entry

    required property string label
    required property AccountField value
    property string placeholder: ""
    property alias fieldName: input.objectName

    implicitHeight: frame.y + frame.height + (reason.visible ? reason.height + 4 : 0)

    Label {
        id: heading

        style: Tokens.type.smallMedium
        text: entry.label
    }
    Rectangle {
        id: frame

        y: heading.height + 6
        width: parent.width
        height: flow.height + 16
        radius: Tokens.radiusControl
        color: Tokens.surface
        border.width: entry.value.state === Store.SaveState.Failed || input.activeFocus ? 2 : 1
        border.color: entry.value.state === Store.SaveState.Failed ? Tokens.danger : input.activeFocus ? Tokens.focus : Tokens.control

        TapHandler {
            onTapped: input.forceActiveFocus(Qt.MouseFocusReason)
        }
        Flow {
            id: flow

            x: 8
            y: 8
            width: parent.width - 20 - (note.visible ? note.width + 8 : 0)
            spacing: 6

            Repeater {
                model: entry.value.entries

                ListChip {
                    required property string modelData

                    text: modelData
                    onDropped: entry.value.removeEntry(modelData)
                }
            }
            T.TextField {
                id: input

                width: Math.max(120, Math.min(flow.width, contentWidth + 12))
                height: Tokens.fit(24)
                leftPadding: 4
                verticalAlignment: TextInput.AlignVCenter
                font.family: Tokens.family
                font.pixelSize: Tokens.type.body.size
                color: Tokens.t1
                selectionColor: Tokens.selection
                selectedTextColor: Tokens.t1
                selectByMouse: true
                Accessible.name: entry.label
                onEditingFinished: {
                    entry.value.addEntry(text)
                    clear()
                }
                onTextEdited: {
                    if (!text.endsWith(","))
                        return
                    entry.value.addEntry(text.slice(0, -1))
                    clear()
                }
                Keys.onPressed: event => {
                    event.accepted = event.key === Qt.Key_Backspace && text === "" && entry.value.entries.length > 0
                    if (event.accepted)
                        entry.value.removeEntry(entry.value.entries[entry.value.entries.length - 1])
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    x: 4
                    visible: input.text === "" && input.preeditText === ""
                    color: Tokens.t3
                    text: entry.placeholder
                    Accessible.ignored: true
                }
            }
        }
        SaveNote {
            id: note

            anchors.verticalCenter: parent.verticalCenter
            x: parent.width - width - 12
            value: entry.value
            label: entry.label
        }
    }
    ErrorLine {
        id: reason

        y: frame.y + frame.height + 4
        width: parent.width
        text: entry.value.error
    }
}
