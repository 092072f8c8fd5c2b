import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Markdown
import Kiv.Tokens

// A table scrolls sideways in its frame when it is wider.
BlockRow {
    id: block

    readonly property int margin: 9

    signal copyRequested()

    Item {
        id: frame

        width: block.inner
        height: words.height + 2 * block.margin

        FrameSlice {
            anchors.fill: parent
            begins: block.row.part.begins
            ends: block.row.part.ends
            radius: Tokens.radiusBlock
            color: "transparent"
            edge: Tokens.line
        }
        FrameSlice {
            width: parent.width
            height: words.tops[1] ?? frame.height
            visible: block.row.part.begins
            ends: words.tops.length < 2
            radius: Tokens.radiusBlock
            color: Tokens.inset
            edge: Tokens.line
        }
        LineStack {
            anchors.fill: parent
            tops: words.tops
            color: Tokens.line
        }
        Rectangle {
            visible: !block.row.part.begins
            width: parent.width
            height: 1
            color: Tokens.line
        }
        Flickable {
            id: scroller

            x: 1
            width: frame.width - 2
            height: frame.height
            contentWidth: words.width
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentWidth > width
            clip: interactive

            T.ScrollBar.horizontal: ScrollBar {}

            BlockWords {
                id: words

                y: block.margin
                width: Math.max(scroller.width, unwrappedWidth)
                available: scroller.width
                part: block.row.part
                growing: block.row.growing
                style: Tokens.type.small
                wrapMode: TextEdit.NoWrap
                Keys.onPressed: event => {
                    event.accepted = event.matches(StandardKey.Copy) && selectedText !== ""
                    if (event.accepted)
                        copyCells()
                }
            }
        }
        HoverHandler {
            id: pointer
        }
        IconButton {
            id: copy

            objectName: "copyTable"
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: 4
            visible: block.row.part.begins
            opacity: pointer.hovered || visualFocus ? 1 : 0
            size: 26
            iconSize: 16
            iconName: "copy"
            text: qsTr("Copy the table")
            onClicked: block.copyRequested()

            Rectangle {
                z: -1
                anchors.fill: parent
                radius: Tokens.radiusChip
                color: Tokens.inset
            }
        }
    }
}
