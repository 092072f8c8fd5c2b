import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store

// What can be done with a message.
Popover {
    id: menu

    required property Feed feed
    /// The last row of the message.
    property feedRow row
    readonly property bool failed: row.delivery === Store.Delivery.Failed

    width: 240
    onAboutToHide: feed.enterList()
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
                menu.feed.copyMessage(menu.row.messageId)
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
                menu.feed.sceneRequested(menu.row.messageId)
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
                menu.feed.askAgainRequested(menu.row.messageId)
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
                menu.feed.editRequested(menu.row.messageId)
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
                menu.feed.retryRequested(menu.row.messageId)
            }
        }
    }
}
