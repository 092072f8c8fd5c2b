import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The conversation in full, over the canvas.
FocusScope {
    id: dock

    required property AppStore store
    property alias feed: feed

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Conversation")
    Keys.onEscapePressed: store.layout.toggleDock()

    Shadow {
        level: Shadow.High
        targetRadius: 0
    }
    Rectangle {
        anchors.fill: parent
        color: Tokens.rail

        Rectangle {
            width: 1
            height: parent.height
            color: Tokens.line2
        }
    }
    // What lies below stays where it is.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }
    Item {
        id: head

        width: parent.width
        height: Tokens.fit(56)

        Figure {
            x: 24
            anchors.verticalCenter: parent.verticalCenter
            kind: dock.store.scope.scopeKind
            name: dock.store.scope.scopeName
            colorHex: dock.store.scope.scopeColorHex
            size: 28
            thinking: dock.store.chat.liveWaiting
        }
        Column {
            x: 64
            width: search.x - x - 12
            anchors.verticalCenter: parent.verticalCenter

            Label {
                width: parent.width
                style: Tokens.type.strong
                text: dock.store.scope.scopeName
            }
            Label {
                width: parent.width
                visible: text !== ""
                style: Tokens.type.caption
                color: Tokens.t3
                text: dock.store.scope.scopeDetail
            }
        }
        IconButton {
            id: search

            objectName: "findButton"
            anchors.right: more.left
            anchors.rightMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            iconName: "search"
            active: dock.store.find.shown
            text: qsTr("Find in the conversation")
            keys: "Ctrl F"
            onClicked: dock.store.find.open()
        }
        IconButton {
            id: more

            objectName: "moreButton"
            anchors.right: close.left
            anchors.rightMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            iconName: "more"
            active: menu.visible
            text: qsTr("More")
            onClicked: menu.visible ? menu.close() : menu.open()

            ConversationExport {
                id: exporter

                objectName: "conversationExport"
                store: dock.store
                onCopied: words => Toasts.show(words)
                onSaved: (words, folder) => Toasts.show(words, qsTr("Open the folder"), folder)
            }
            ConversationMenu {
                id: menu

                store: dock.store
                exporter: exporter
                onAboutToHide: more.forceActiveFocus(Qt.PopupFocusReason)
            }
        }
        IconButton {
            id: close

            x: parent.width - width - 12
            anchors.verticalCenter: parent.verticalCenter
            iconName: "close"
            text: qsTr("Close the conversation")
            keys: "Ctrl J"
            onClicked: dock.store.layout.toggleDock()
        }
        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }
    FindBar {
        id: finding

        anchors.top: head.bottom
        width: parent.width
        height: visible ? implicitHeight : 0
        find: dock.store.find
        feed: feed
        onClosed: composer.forceActiveFocus(Qt.OtherFocusReason)
    }
    Feed {
        id: feed

        anchors.top: finding.bottom
        anchors.bottom: composer.top
        width: parent.width
        messages: dock.store.chat.msgs
        scope: dock.store.scope
        calendar: dock.store.calendar
        unreadFrom: dock.store.chat.unreadFrom
        compact: false
        finder: dock.store.find
        onRetryRequested: messageId => dock.store.chat.retry(messageId)
        onAskAgainRequested: messageId => dock.store.chat.askAgain(messageId)
        onSceneRequested: messageId => dock.store.canvas.showMessageCanvas(messageId)
        onChipPicked: (messageId, chip) => dock.store.chat.pickChip(messageId, chip)
        onCallToggled: callId => dock.store.call.toggleCallLines(callId)
        onEditRequested: messageId => {
            dock.store.chat.edit(messageId)
            composer.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    Composer {
        id: composer

        focus: true
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 10
        x: 24
        width: parent.width - 48
        store: dock.store
        hint: qsTr("Enter to send")
        note: qsTr("Shift+Enter for a new line")
    }
}
