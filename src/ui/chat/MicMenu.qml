pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Which microphone the person talks into.
Popover {
    id: menu

    required property MicrophoneRoom microphone
    readonly property list<microphoneDevice> devices: microphone.devices

    objectName: "micMenu"
    width: Tokens.fit(280)
    alignLeft: true
    y: -height - 6 + rise
    onAboutToShow: {
        microphone.look()
        list.currentIndex = 1 + microphone.chosenRow()
        list.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: list.y + list.height
    }

    Label {
        x: 10
        height: Tokens.fit(28)
        width: menu.availableWidth - 20
        verticalAlignment: Text.AlignVCenter
        style: Tokens.type.captionStrong
        color: Tokens.t3
        text: menu.devices.length > 0 ? qsTr("Microphone") : qsTr("No microphone was found")
        Accessible.role: Accessible.Heading
    }
    ListView {
        id: list

        function go(row: int) {
            currentIndex = Math.max(0, Math.min(count - 1, row));
            (currentItem as MenuRow)?.forceActiveFocus(Qt.TabFocusReason)
        }

        objectName: "microphones"
        y: Tokens.fit(28)
        width: menu.availableWidth
        height: Math.min(contentHeight, 8 * Tokens.fit(36))
        // The first leaves it to the system.
        model: menu.devices.length + 1
        clip: contentHeight > height
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Microphone")
        Keys.onUpPressed: go(currentIndex - 1)
        Keys.onDownPressed: go(currentIndex + 1)

        T.ScrollBar.vertical: ScrollBar {}

        delegate: MenuRow {
            required property int index
            readonly property string device: index === 0 ? "" : menu.devices[index - 1]?.id ?? ""

            objectName: "microphone:" + device
            width: list.width
            focusPolicy: Qt.NoFocus
            highlighted: ListView.isCurrentItem && list.activeFocus
            iconName: device === menu.microphone.chosen ? "check" : ""
            text: index === 0 ? qsTr("System default") : menu.devices[index - 1]?.name ?? ""
            Accessible.role: Accessible.RadioButton
            Accessible.checkable: true
            Accessible.checked: device === menu.microphone.chosen
            onClicked: {
                menu.close()
                menu.microphone.choose(device)
            }
        }
    }
}
