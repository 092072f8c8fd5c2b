pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Which microphone the person talks into.
Popover {
    id: menu

    required property MicrophoneRoom microphone

    function choose(id: string) {
        close()
        microphone.choose(id)
    }

    objectName: "micMenu"
    width: 280
    alignLeft: true
    y: -height - 6
    onAboutToShow: standard.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: column.implicitHeight
    }

    Column {
        id: column

        width: menu.availableWidth
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Microphone")

        Label {
            x: 10
            height: 28
            width: parent.width - 20
            verticalAlignment: Text.AlignVCenter
            style: Tokens.type.caption
            color: Tokens.t3
            text: menu.microphone.devices.length > 0 ? qsTr("Microphone") : qsTr("No microphone was found")
        }
        MicRow {
            id: standard

            objectName: "microphone:"
            width: parent.width
            text: qsTr("System default")
            chosen: menu.microphone.chosen === ""
            onClicked: menu.choose("")
        }
        Repeater {
            model: menu.microphone.devices

            MicRow {
                required property microphoneDevice modelData

                objectName: "microphone:" + modelData.id
                width: column.width
                text: modelData.name
                chosen: menu.microphone.chosen === modelData.id
                onClicked: menu.choose(modelData.id)
            }
        }
    }
}
