pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Which microphone is listened to.
Popover {
    id: menu

    required property MicrophoneRoom room

    y: -height - 16
    x: Math.round((parent.width - width) / 2)
    width: 300
    onAboutToShow: {
        room.look()
        list.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: list.y + list.height
    }

    Label {
        x: 10
        y: 8
        style: Tokens.type.captionStrong
        color: Tokens.t3
        text: qsTr("Microphone")
        Accessible.role: Accessible.Heading
    }
    ListView {
        id: list

        objectName: "microphones"
        y: 34
        width: menu.availableWidth
        height: Math.min(contentHeight, 8 * 36)
        model: menu.room.devices.length + 1
        clip: true
        keyNavigationEnabled: true
        interactive: contentHeight > height
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Microphone")
        Keys.onReturnPressed: (currentItem as MenuRow)?.clicked()
        Keys.onEnterPressed: (currentItem as MenuRow)?.clicked()

        delegate: MenuRow {
            required property int index
            // The first leaves it to the system.
            readonly property string device: index === 0 ? "" : menu.room.devices[index - 1].id

            objectName: "microphone:" + index
            width: list.width
            focusPolicy: Qt.NoFocus
            highlighted: ListView.isCurrentItem && list.activeFocus
            iconName: device === menu.room.chosen ? "check" : ""
            text: index === 0 ? qsTr("System default") : menu.room.devices[index - 1].name
            onClicked: {
                menu.room.choose(device)
                menu.close()
            }
        }
    }
}
