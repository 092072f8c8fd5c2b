pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// A conversation: newest at the end, which the view follows while the person is near it.
FocusScope {
    id: feed

    required property QtObject messages
    required property ScopeRoom scope
    required property Calendar calendar
    required property bool compact
    property bool offline: false
    property bool hasOlder: false
    /// What the conversation can begin with.
    property list<string> starters
    /// The first message that the person has not seen.
    property string unreadFrom: ""
    /// Marks what it finds in this feed.
    property FindRoom finder: null
    property string flashed: ""
    readonly property int side: compact ? 16 : 24
    readonly property real column: Math.min(width - 2 * side, 720)
    /// The message whose actions show.
    readonly property string activeMessage: hoveredMessage !== "" ? hoveredMessage : activeFocus ? view.cursor : ""
    /// What has the keys, in a message or elsewhere.
    readonly property Item stop: activeFocus ? Window.activeFocusItem : null
    readonly property string hoveredMessage: pointer.hovered ? view.messageAt(pointer.point.position.y + list.contentY) : ""

    signal retryRequested(messageId: string)
    signal sceneRequested(messageId: string)
    signal olderRequested()
    /// The person has scrolled up to the first message.
    signal topReached()
    signal chipPicked(messageId: string, chip: replyChip)
    signal editRequested(messageId: string)
    signal askAgainRequested(messageId: string)
    signal asked(question: string)
    /// What was said in a call shall show, or show no longer.
    signal callToggled(callId: string)

    /// Brings a message into view and flashes its edge once.
    function reveal(messageId: string): bool {
        flashed = ""
        flashed = messageId
        return view.reveal(messageId)
    }

    /// The message at the upper edge of what is in sight.
    function topMessage(): string {
        return view.topMessage()
    }

    function copyMessage(messageId: string) {
        if (feedRows.tailOf(messageId).mine)
            Clipboard.setText(feedRows.messageText(messageId))
        else
            Clipboard.setMarkdown(feedRows.messageText(messageId), feedRows.messageBody(messageId))
    }
    /// Gives the focus to the messages.
    function enterList() {
        list.forceActiveFocus(Qt.PopupFocusReason)
    }
    function openMenu(messageId: string) {
        if (messageId === "")
            return
        view.setCursor(messageId)
        const row = feedRows.tailOf(messageId)
        if (row.callId === "")
            menu.openFor(row)
        else
            callToggled(row.callId)
    }

    onStopChanged: if ((stop as T.Control)?.visualFocus) view.showStop(stop)

    FeedRows {
        id: feedRows

        messages: feed.messages
        olderBefore: feed.hasOlder
        unreadFrom: feed.unreadFrom
        calendar: feed.calendar
        finder: feed.finder
    }
    Connections {
        target: feed.finder

        function onStepped() {
            view.revealFound(feed.finder.currentMessage, feed.finder.currentPart)
        }
    }
    Flickable {
        id: list

        objectName: feed.compact ? "compactFeed" : "dockFeed"
        width: parent.width
        height: parent.height - (offers.visible ? offers.height : 0)
        contentWidth: width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        bottomMargin: Tokens.fit(20)
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Conversation")
        onActiveFocusChanged: if (activeFocus) view.enterCursor()
        Keys.onUpPressed: view.stepCursor(-1)
        Keys.onDownPressed: view.stepCursor(1)
        Keys.onReturnPressed: feed.openMenu(view.cursor)
        Keys.onEnterPressed: feed.openMenu(view.cursor)
        Keys.onMenuPressed: feed.openMenu(view.cursor)
        Keys.onPressed: event => {
            event.accepted = event.matches(StandardKey.Copy) && view.cursor !== ""
            if (event.accepted)
                feed.copyMessage(view.cursor)
        }

        T.ScrollBar.vertical: ScrollBar {
            id: bar
        }

        FeedView {
            id: view

            x: Math.round((list.width - width) / 2)
            width: feed.column
            rows: feedRows
            flickable: list
            upperMargin: feed.compact ? -12 : 0
            bottomUp: feed.compact
            held: list.moving || bar.pressed
            distance: Tokens.followDistance
            onTopReached: feed.topReached()

            FeedDelegate {
                kind: FeedDelegate.Older

                OlderLink {
                    compact: feed.compact
                    onClicked: feed.olderRequested()
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Day

                DayLabel {
                    compact: feed.compact
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Unread

                UnreadLine {
                    compact: feed.compact
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Call

                CallLine {
                    compact: feed.compact
                    onToggled: feed.callToggled(row.callId)
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Head

                MessageHead {
                    compact: feed.compact
                    scope: feed.scope
                    offline: feed.offline
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Files

                FilesRow {
                    compact: feed.compact
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Own

                OwnMessage {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                    hovered: row.messageId === feed.activeMessage
                    onEditRequested: feed.editRequested(row.messageId)
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Paragraph

                ParagraphBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Heading

                HeadingBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                }
            }
            FeedDelegate {
                kind: FeedDelegate.List

                ListBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Tasks

                TaskBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Quote

                QuoteBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Code

                CodeBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                    onCopyRequested: Clipboard.setText(feedRows.blockText(row.messageId, row.part.block))
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Table

                TableBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                    onCopyRequested: Clipboard.setText(feedRows.blockText(row.messageId, row.part.block))
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Rule

                RuleBlock {
                    compact: feed.compact
                    flashing: row.messageId === feed.flashed
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Tail

                MessageTail {
                    compact: feed.compact
                    hovered: row.messageId === feed.activeMessage
                    onRetryRequested: feed.retryRequested(row.messageId)
                    onSceneRequested: feed.sceneRequested(row.messageId)
                    onChipPicked: chip => feed.chipPicked(row.messageId, chip)
                    onCopyRequested: feed.copyMessage(row.messageId)
                    onAskAgainRequested: feed.askAgainRequested(row.messageId)
                }
            }
        }
        Rectangle {
            objectName: "messageRing"
            x: view.x - 10
            y: view.cursorPlace.y + 8
            width: view.width + 20
            height: view.cursorPlace.height + (feed.compact ? 4 : 16)
            visible: (list.activeFocus || menu.opened) && view.cursorPlace.height > 0
            radius: Tokens.radiusCard
            color: "transparent"
            border.width: 2
            border.color: Tokens.focus

            PopupPlace {
                id: menu

                function openFor(row: feedRow) {
                    active = true;
                    (item as MessageMenu).row = row;
                    (item as MessageMenu).links = feedRows.messageLinks(row.messageId)
                    open()
                }

                Component.onCompleted: setSource("MessageMenu.qml", { "feed": feed })
            }
        }
    }
    Flow {
        id: offers

        x: Math.round((parent.width - width) / 2)
        anchors.bottom: parent.bottom
        width: feed.column
        visible: feed.starters.length > 0
        bottomPadding: feed.compact ? 12 : 16
        spacing: 8

        Repeater {
            model: feed.starters

            ReplyChip {
                required property string modelData
                required property int index

                objectName: "starter:" + index
                maximumWidth: feed.column
                text: modelData
                onClicked: feed.asked(modelData)
            }
        }
    }
    HoverHandler {
        id: pointer
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => feed.openMenu(view.messageAt(point.position.y + list.contentY))
    }
    FocusRing {
        anchors.margins: 2
        visible: list.activeFocus && view.cursor === ""
        targetRadius: 0
    }
    JumpButton {
        objectName: "jumpButton"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: list.bottom
        anchors.bottomMargin: 16
        visible: !view.following
        unseen: view.unseen
        onClicked: view.jump()
    }
}
