import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Tokens

// Where the person types. Enter sends, Shift and Enter break the line; the text belongs to the store,
// so that every ask bar of the window shows the same draft.
FocusScope {
    id: bar

    required property string draft
    required property string placeholder
    property string lastPrompt: ""
    property string hint: ""
    property bool stoppable: false
    property bool floating: false
    readonly property bool ready: /\S/.test(draft)
    readonly property int lines: 8

    signal edited(text: string)
    signal submitted(text: string)
    signal stopRequested()

    function submit() {
        if (ready)
            submitted(draft)
    }

    implicitHeight: floating ? Math.max(56, scroller.height + 35) : scroller.height + 58
    onDraftChanged: if (field.text !== draft) {
        field.text = draft
        field.cursorPosition = field.length
    }

    Shadow {
        visible: bar.floating
        targetRadius: Tokens.radiusFloat
    }
    Rectangle {
        anchors.fill: parent
        radius: bar.floating ? Tokens.radiusFloat : Tokens.radiusPopover
        color: Tokens.surface
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Tokens.focus : Tokens.line2
    }
    Flickable {
        id: scroller

        x: bar.floating ? 6 : 0
        y: bar.floating ? 17 : 12
        width: bar.width - x - (bar.floating ? 56 : 0)
        height: Math.max(Tokens.type.body.line, Math.min(field.contentHeight, bar.lines * Tokens.type.body.line))
        contentWidth: width
        contentHeight: field.contentHeight
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: ScrollBar {}

        T.TextArea {
            id: field

            objectName: "askField"
            width: scroller.width
            height: Math.max(scroller.height, contentHeight)
            focus: true
            leftPadding: 14
            rightPadding: 14
            topPadding: -1
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            font.family: Tokens.family
            font.pixelSize: Tokens.type.body.size
            color: Tokens.t1
            selectionColor: Tokens.selection
            selectedTextColor: Tokens.t1
            Accessible.name: bar.placeholder
            Component.onCompleted: cursorPosition = length

            // The line with the cursor stays in view.
            onCursorRectangleChanged: scroller.contentY = Math.max(0, cursorRectangle.bottom - scroller.height,
                Math.min(scroller.contentY, cursorRectangle.top))
            onTextChanged: if (text !== bar.draft) bar.edited(text)
            Keys.onPressed: event => {
                const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                event.accepted = enter && !inputMethodComposing && !(event.modifiers & Qt.ShiftModifier)
                if (event.accepted)
                    bar.submit()
            }
            Keys.onUpPressed: event => {
                event.accepted = text === "" && bar.lastPrompt !== ""
                if (event.accepted)
                    bar.edited(bar.lastPrompt)
            }
            Keys.onEscapePressed: event => {
                event.accepted = bar.stoppable
                if (bar.stoppable)
                    bar.stopRequested()
            }

            Label {
                x: field.leftPadding
                width: field.width - 2 * x
                visible: field.text === "" && field.preeditText === ""
                color: Tokens.t3
                text: bar.placeholder
                Accessible.ignored: true
            }
        }
    }
    LineSpacing {
        document: field.textDocument
        lineHeight: Tokens.type.body.line
    }
    Label {
        anchors.right: send.left
        anchors.rightMargin: 8
        anchors.verticalCenter: send.verticalCenter
        visible: !bar.floating
        style: Tokens.type.caption
        color: Tokens.t3
        text: bar.hint
    }
    SendButton {
        id: send

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.rightMargin: bar.floating ? 10 : 6
        anchors.bottomMargin: bar.floating ? 10 : 6
        size: bar.floating ? 36 : 32
        stopping: bar.stoppable
        enabled: bar.stoppable || bar.ready
        onClicked: stopping ? bar.stopRequested() : bar.submit()
    }
    // A press anywhere in the bar goes into the field.
    TapHandler {
        onTapped: field.forceActiveFocus(Qt.MouseFocusReason)
    }
}
