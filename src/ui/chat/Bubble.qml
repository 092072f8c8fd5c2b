import QtQuick
import Kiv.Chat
import Kiv.Tokens

// The words of one message: they can be selected and copied.
Rectangle {
    id: bubble

    required property string body
    required property bool mine
    required property bool compact
    property bool growing: false
    property bool failed: false
    property bool flashing: false
    property real maximumWidth: 720

    readonly property TypeStyle style: compact ? Tokens.type.smallFeed : Tokens.type.body
    readonly property int sidePadding: compact ? 12 : mine ? 14 : 20
    readonly property int upperPadding: compact ? (mine ? 8 : 9) : mine ? 10 : 14
    readonly property int lowerPadding: compact ? (mine ? 8 : 9) : mine ? 10 : 16

    implicitWidth: mine ? Math.min(maximumWidth, Math.ceil(measure.implicitWidth) + 2 * sidePadding + 1) : maximumWidth
    implicitHeight: words.height + upperPadding + lowerPadding
    radius: Tokens.radiusCard
    color: mine ? Tokens.accentTint : Tokens.surface
    border.width: mine && !failed ? 0 : 1
    border.color: failed ? Tokens.danger : Tokens.line

    Rectangle {
        id: edge

        anchors.fill: parent
        radius: parent.radius
        color: "transparent"
        border.width: 2
        border.color: Tokens.accent
        opacity: 0

        SequentialAnimation {
            running: bubble.flashing

            NumberAnimation { target: edge; property: "opacity"; from: 0; to: 1; duration: Tokens.quick }
            NumberAnimation { target: edge; property: "opacity"; to: 0; duration: Tokens.breathe }
        }
    }
    // The width that our own words would like to have; an answer takes the whole column.
    Text {
        id: measure

        visible: false
        text: bubble.mine ? bubble.body : ""
        textFormat: Text.PlainText
        font: words.font
    }
    TextEdit {
        id: words

        readonly property rect end: positionToRectangle(length + 0 * (width + contentHeight))

        x: bubble.sidePadding
        y: bubble.upperPadding - 1
        width: bubble.width - 2 * bubble.sidePadding
        height: Math.max(contentHeight, bubble.style.line)
        text: bubble.body
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        readOnly: true
        selectByMouse: true
        activeFocusOnPress: true
        font.family: Tokens.family
        font.pixelSize: bubble.style.size
        color: Tokens.t1
        selectionColor: Tokens.selection
        selectedTextColor: Tokens.t1
        Accessible.role: Accessible.StaticText
        Accessible.name: text

        Rectangle {
            visible: bubble.growing
            x: Math.min(words.end.x + (bubble.body === "" ? 0 : 5), words.width - width)
            y: words.end.y + (bubble.style.line - height) / 2 + 1
            width: 8
            height: 8
            radius: 4
            color: Tokens.accentText

            SequentialAnimation on opacity {
                running: bubble.growing && !Tokens.reducedMotion
                loops: Animation.Infinite

                NumberAnimation { to: 0.55; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
                NumberAnimation { to: 1; duration: Tokens.breathe / 2; easing.type: Easing.InOutSine }
            }
        }
    }
    LineSpacing {
        document: words.textDocument
        lineHeight: bubble.style.line
    }
}
