pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Markdown
import Kiv.Store
import Kiv.Tokens

// What can be done with a message.
Popover {
    id: menu

    required property Feed feed
    /// The last row of the message.
    property feedRow row
    property list<messageLink> links
    readonly property bool failed: row.delivery === Store.Delivery.Failed

    width: Tokens.fit(links.length > 0 ? 360 : 240)
    onAboutToHide: feed.enterList()
    onAboutToShow: copy.forceActiveFocus(Qt.ShortcutFocusReason)

    contentItem: Item {
        implicitHeight: column.implicitHeight
    }

    KeyColumn {
        id: column

        MenuRow {
            id: copy

            objectName: "copyMessageRow"
            width: menu.availableWidth
            iconName: "copy"
            text: qsTr("Copy the message")
            hint: qsTr("Ctrl C")
            onClicked: {
                menu.close()
                menu.feed.copyMessage(menu.row.messageId)
            }
        }
        MenuRow {
            objectName: "showMessageRow"
            width: menu.availableWidth
            visible: menu.row.cardArt !== ""
            iconName: "layers"
            text: qsTr("Show on the canvas")
            onClicked: {
                menu.close()
                menu.feed.sceneRequested(menu.row.messageId)
            }
        }
        MenuRow {
            objectName: "askAgainRow"
            width: menu.availableWidth
            visible: !menu.row.mine && !menu.row.growing && !menu.row.fromCall
            iconName: "refresh"
            text: qsTr("Ask again")
            onClicked: {
                menu.close()
                menu.feed.askAgainRequested(menu.row.messageId)
            }
        }
        MenuRow {
            objectName: "editMessageRow"
            width: menu.availableWidth
            visible: menu.row.mine && !menu.row.fromCall && menu.row.delivery !== Store.Delivery.Pending
            iconName: "edit"
            text: qsTr("Edit")
            onClicked: {
                menu.close()
                menu.feed.editRequested(menu.row.messageId)
            }
        }
        MenuRow {
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
        Repeater {
            model: menu.links

            MenuRow {
                required property messageLink modelData
                required property int index

                objectName: "messageLink:" + index
                width: menu.availableWidth
                iconName: "globe"
                text: modelData.words
                hint: modelData.place
                Accessible.role: Accessible.Link
                Accessible.name: qsTr("Open %1, %2").arg(text).arg(modelData.target)
                onClicked: {
                    menu.close()
                    LinkOpener.followed(modelData.target)
                }
            }
        }
    }
}
