import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// Several lines of typing in a frame that scrolls.
FocusScope {
    id: area

    required property string label
    property string text: ""
    property bool failed: false

    signal edited(text: string)

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusControl
        color: Tokens.surface
        border.width: area.failed || field.activeFocus ? 2 : 1
        border.color: area.failed ? Tokens.danger : field.activeFocus ? Tokens.focus : Tokens.control
    }
    Flickable {
        id: scroller

        anchors.fill: parent
        anchors.margins: 2
        contentWidth: width
        contentHeight: field.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration

        T.ScrollBar.vertical: ScrollBar {}

        T.TextArea {
            id: field

            objectName: "documentText"
            width: scroller.width
            height: Math.max(scroller.height, contentHeight + topPadding + bottomPadding)
            focus: true
            leftPadding: 14
            rightPadding: 18
            topPadding: 12
            bottomPadding: 12
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            font.family: Tokens.family
            font.pixelSize: Tokens.type.body.size
            color: Tokens.t1
            selectionColor: Tokens.selection
            selectedTextColor: Tokens.t1
            Accessible.name: area.label
            // The line with the cursor stays in view.
            onCursorRectangleChanged: scroller.contentY = Math.max(0, cursorRectangle.bottom + 12 - scroller.height,
                Math.min(scroller.contentY, cursorRectangle.top - 12))
            onTextChanged: if (text !== area.text) area.edited(text)

            Binding on text {
                value: area.text
            }
        }
    }
}
