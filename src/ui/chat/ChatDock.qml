import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The conversation in full, over the canvas.
FocusScope {
    id: dock

    required property AppStore store
    /// What the conversation can begin with.
    property list<string> starters
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
            offline: dock.store.connection.offline
        }
        Column {
            x: 64
            width: actions.x - x - 12
            anchors.verticalCenter: parent.verticalCenter

            FullLabel {
                width: parent.width
                style: Tokens.type.strong
                text: dock.store.scope.scopeName
                Accessible.ignored: text === ""
            }
            FullLabel {
                width: parent.width
                visible: text !== ""
                style: Tokens.type.caption
                color: Tokens.t3
                text: dock.store.scope.scopeDetail
                Accessible.ignored: text === ""
            }
        }
        Row {
            id: actions

            x: parent.width - width - 12
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4

            IconButton {
                objectName: "findButton"
                iconName: "search"
                active: dock.store.find.shown
                text: qsTr("Find in the conversation")
                keys: "Ctrl F"
                onClicked: dock.store.find.open()
            }
            IconButton {
                id: more

                objectName: "moreButton"
                iconName: "more"
                active: menu.visible
                text: qsTr("More")
                onClicked: menu.toggle()

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
                objectName: "toRailButton"
                // Where the rail shows, closing the dock comes to the same.
                visible: !dock.store.layout.railShown
                iconName: "rail"
                text: qsTr("Continue in the rail")
                onClicked: dock.store.layout.dockToRail()
            }
            IconButton {
                iconName: "close"
                text: qsTr("Close the conversation")
                keys: "Ctrl J"
                onClicked: dock.store.layout.toggleDock()
            }
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
        offline: dock.store.connection.offline
        starters: dock.starters
        finder: dock.store.find
        onAsked: question => dock.store.chat.send(question)
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
