import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// What can be done with the conversation as a whole.
Popover {
    id: menu

    required property AppStore store
    required property ConversationExport exporter

    width: Tokens.fit(260)
    onAboutToShow: find.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: 3 * Tokens.fit(36)
    }

    KeyColumn {
        MenuRow {
            id: find

            objectName: "findRow"
            width: menu.availableWidth
            iconName: "search"
            text: qsTr("Find in the conversation")
            hint: qsTr("Ctrl F")
            onClicked: {
                menu.close()
                menu.store.find.open()
            }
        }
        MenuRow {
            objectName: "saveConversationRow"
            width: menu.availableWidth
            iconName: "download"
            text: qsTr("Save as Markdown")
            onClicked: {
                menu.close()
                menu.exporter.save()
            }
        }
        MenuRow {
            objectName: "copyConversationRow"
            width: menu.availableWidth
            iconName: "copy"
            text: qsTr("Copy as Markdown")
            onClicked: {
                menu.close()
                menu.exporter.copy()
            }
        }
    }
}
