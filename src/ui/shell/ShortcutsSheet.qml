pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Tokens

// Every key that gives a command.
Dialog {
    id: sheet

    required property Commands commands

    width: Tokens.fit(520)
    objectName: "shortcutsSheet"
    onAboutToShow: list.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: Tokens.fit(44) + list.height
    }

    Label {
        style: Tokens.type.title
        text: qsTr("Keyboard shortcuts")
        Accessible.role: Accessible.Heading
    }
    IconButton {
        x: sheet.availableWidth + sheet.rightPadding - width - 14
        y: 14 - sheet.topPadding
        iconName: "close"
        text: qsTr("Close")
        onClicked: sheet.close()
    }
    ListView {
        id: list

        objectName: "shortcutList"
        // Room for the ring of a row.
        x: -12
        y: Tokens.fit(44)
        width: sheet.availableWidth + 24
        height: Math.min(contentHeight, 12 * Tokens.fit(36),
            (T.Overlay.overlay?.height ?? 680) - y - sheet.topPadding - sheet.bottomPadding - 48)
        model: sheet.commands.everyKey
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Keyboard shortcuts")

        T.ScrollBar.vertical: ScrollBar {}

        delegate: T.ItemDelegate {
            id: row

            required property menuEntry modelData

            width: list.width
            height: Tokens.fit(36)
            focusPolicy: Qt.NoFocus
            text: modelData.title
            Accessible.name: qsTr("%1, %2").arg(modelData.title).arg(modelData.keys)
            Accessible.role: Accessible.ListItem

            FocusRing {
                anchors.margins: 0
                targetRadius: 4
                visible: row.ListView.isCurrentItem && list.activeFocus
            }
            Label {
                x: 12
                anchors.verticalCenter: parent.verticalCenter
                width: keys.x - x - 8
                text: row.modelData.title
                Accessible.ignored: true
            }
            Label {
                id: keys

                x: row.width - width - 24
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.captionMedium
                color: Tokens.t2
                text: row.modelData.keys
                Accessible.ignored: true
            }
        }
    }
}
