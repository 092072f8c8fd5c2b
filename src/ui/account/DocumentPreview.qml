pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Account
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// A document as agents' answers show: with the blocks of the conversation.
FocusScope {
    id: preview

    required property string text
    required property Calendar calendar

    DocumentMessage {
        id: message

        text: preview.text
    }
    FeedRows {
        id: blocks

        messages: message.messages
        calendar: preview.calendar
    }
    Label {
        x: 14
        y: 12
        visible: preview.text.trim() === ""
        color: Tokens.t3
        text: qsTr("Nothing to read yet")
    }
    Flickable {
        id: scroller

        function scroll(by: real) {
            contentY = Math.max(-topMargin, Math.min(contentY + by, contentHeight + bottomMargin - height))
        }

        objectName: "documentPreview"
        anchors.fill: parent
        contentWidth: width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        activeFocusOnTab: true
        Accessible.role: Accessible.Document
        Accessible.name: qsTr("Preview")
        Keys.onUpPressed: scroll(-Tokens.fit(40))
        Keys.onDownPressed: scroll(Tokens.fit(40))
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown
            if (event.accepted)
                scroll(event.key === Qt.Key_PageUp ? -height : height)
        }

        T.ScrollBar.vertical: ScrollBar {}

        FeedView {
            width: scroller.width
            rows: blocks
            flickable: scroller
            upperMargin: 0
            // It is read from the top, and nobody else moves it.
            held: true
            distance: 0

            FeedDelegate {
                kind: FeedDelegate.Day

                NoRow {}
            }
            FeedDelegate {
                kind: FeedDelegate.Head

                NoRow {}
            }
            FeedDelegate {
                kind: FeedDelegate.Tail

                NoRow {}
            }
            FeedDelegate {
                kind: FeedDelegate.Paragraph

                ParagraphBlock {
                    compact: true
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Heading

                HeadingBlock {
                    compact: true
                }
            }
            FeedDelegate {
                kind: FeedDelegate.List

                ListBlock {
                    compact: true
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Tasks

                TaskBlock {
                    compact: true
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Quote

                QuoteBlock {
                    compact: true
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Code

                CodeBlock {
                    compact: true
                    onCopyRequested: Clipboard.setText(blocks.blockText(row.messageId, row.part.block))
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Table

                TableBlock {
                    compact: true
                    onCopyRequested: Clipboard.setText(blocks.blockText(row.messageId, row.part.block))
                }
            }
            FeedDelegate {
                kind: FeedDelegate.Rule

                RuleBlock {
                    compact: true
                }
            }
        }
    }
    FocusRing {
        visible: scroller.activeFocus
    }
}
