import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store

// What can be done with a message.
Popover {
    id: menu

    /// The last row of the message.
    property feedRow row
    readonly property bool failed: row.delivery === Store.Delivery.Failed

    signal copyRequested()
    signal editRequested()
    signal retryRequested()
    signal askAgainRequested()
    signal sceneRequested()

    width: 240
    onAboutToShow: copy.forceActiveFocus(Qt.ShortcutFocusReason)

    contentItem: Item {
        implicitHeight: column.implicitHeight
    }

    Column {
        id: column

        MenuRow {
            id: copy

            objectName: "copyMessageRow"
            width: menu.availableWidth
            iconName: "copy"
            text: qsTr("Copy the message")
            hint: qsTr("Ctrl C")
            KeyNavigation.down: show
            onClicked: {
                menu.close()
                menu.copyRequested()
            }
        }
        MenuRow {
            id: show

            objectName: "showMessageRow"
            width: menu.availableWidth
            visible: menu.row.cardArt !== ""
            iconName: "layers"
            text: qsTr("Show on the canvas")
            KeyNavigation.down: ask
            onClicked: {
                menu.close()
                menu.sceneRequested()
            }
        }
        MenuRow {
            id: ask

            objectName: "askAgainRow"
            width: menu.availableWidth
            visible: !menu.row.mine && !menu.row.growing && !menu.row.fromCall
            iconName: "refresh"
            text: qsTr("Ask again")
            KeyNavigation.down: edit
            onClicked: {
                menu.close()
                menu.askAgainRequested()
            }
        }
        MenuRow {
            id: edit

            objectName: "editMessageRow"
            width: menu.availableWidth
            visible: menu.row.mine && !menu.row.fromCall && menu.row.delivery !== Store.Delivery.Pending
            iconName: "edit"
            text: qsTr("Edit")
            KeyNavigation.down: retry
            onClicked: {
                menu.close()
                menu.editRequested()
            }
        }
        MenuRow {
            id: retry

            objectName: "retryMessageRow"
            width: menu.availableWidth
            visible: menu.failed
            iconName: "refresh"
            text: qsTr("Try again")
            onClicked: {
                menu.close()
                menu.retryRequested()
            }
        }
    }
}
