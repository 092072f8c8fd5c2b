import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Where the person types. Enter sends, Shift and Enter break the line; the text belongs to the store,
// so that every ask bar of the window shows the same draft.
FocusScope {
    id: bar

    required property string draft
    required property string placeholder
    required property AttachmentRoom attachments
    required property DictationRoom dictation
    required property MicrophoneRoom microphone
    property string lastPrompt: ""
    property string hint: ""
    property bool stoppable: false
    property bool floating: false
    readonly property bool ready: (/\S/.test(draft + dictation.dictationInterim) || attachments.chatFiles.attached > 0) && !attachments.chatUploading
    readonly property real trayHeight: tray.visible ? tray.height + 8 : 0
    readonly property int lines: 8

    signal edited(text: string)
    signal submitted()
    signal stopRequested()

    function submit() {
        if (ready)
            submitted()
    }
    function toggleDictation() {
        if (!dictation.dictating) {
            dictation.caret = field.cursorPosition
            field.forceActiveFocus(Qt.OtherFocusReason)
        }
        dictation.toggleDictation()
    }

    Keys.onEscapePressed: event => {
        event.accepted = dictation.dictating
        if (event.accepted)
            dictation.stop()
    }

    implicitHeight: trayHeight + (floating ? Math.max(56, scroller.height + 35) : scroller.height + 58)
    onDraftChanged: if (field.text !== draft) {
        field.text = draft
        field.cursorPosition = field.length
    }

    Shadow {
        visible: bar.floating
        targetRadius: Tokens.radiusFloat
    }
    Lift {
        radius: ground.radius
        visible: !bar.floating && !Tokens.dark
    }
    Rectangle {
        id: ground

        anchors.fill: parent
        radius: bar.floating ? Tokens.radiusFloat : Tokens.radiusPopover
        color: Tokens.surface
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Tokens.focus : Tokens.line2
    }
    AttachTray {
        id: tray

        x: 8
        y: 8
        width: bar.width - 16
        visible: bar.attachments.chatFiles.count > 0
        attachments: bar.attachments
        onFocusLost: field.forceActiveFocus(Qt.TabFocusReason)
    }
    Flickable {
        id: scroller

        x: bar.floating ? 38 : 0
        y: bar.trayHeight + (bar.floating ? 17 : 12)
        width: bar.width - x - (bar.floating ? bar.width - mic.x - 4 + (timer.visible ? timer.width + 8 : 0) : 0)
        height: Math.max(Tokens.type.body.line, Math.min(field.contentHeight, bar.lines * Tokens.type.body.line))
        contentWidth: width
        contentHeight: field.contentHeight
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        // What is being spoken at the end stays in view.
        onContentHeightChanged: if (interim.words !== "" && field.cursorPosition === field.length)
            contentY = Math.max(0, contentHeight - height)

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
            KeyNavigation.priority: KeyNavigation.BeforeItem
            KeyNavigation.tab: attach
            Accessible.name: bar.placeholder
            Component.onCompleted: cursorPosition = length

            // The line with the cursor stays in view.
            onCursorRectangleChanged: scroller.contentY = Math.max(0, cursorRectangle.bottom - scroller.height,
                Math.min(scroller.contentY, cursorRectangle.top))
            onTextChanged: if (text !== bar.draft) bar.edited(text)
            onCursorPositionChanged: if (activeFocus) bar.dictation.caret = cursorPosition
            onActiveFocusChanged: if (activeFocus) bar.dictation.caret = cursorPosition
            Keys.onPressed: event => {
                const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                const files = event.matches(StandardKey.Paste) && Clipboard.holdsFiles()
                event.accepted = files || enter && !inputMethodComposing && !(event.modifiers & Qt.ShiftModifier)
                if (files)
                    Clipboard.attachTo(bar.attachments)
                else if (event.accepted)
                    bar.submit()
            }
            Keys.onUpPressed: event => {
                event.accepted = text === "" && !inputMethodComposing && bar.lastPrompt !== ""
                if (event.accepted)
                    bar.edited(bar.lastPrompt)
            }

            Label {
                x: field.leftPadding
                width: field.width - 2 * x
                visible: field.text === "" && field.preeditText === "" && interim.words === ""
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
    InterimText {
        id: interim

        target: field
        document: field.textDocument
        at: field.cursorPosition
        color: Tokens.t3
        words: field.cursorPosition === bar.dictation.caret && !field.inputMethodComposing ? bar.dictation.interimWords : ""
    }
    Connections {
        target: bar.dictation

        // An edit of the field, so that it can be undone as what is typed can.
        function onSpoken(draft: string, at: int, words: string) {
            if (bar.visible && bar.draft === draft)
                interim.insert(at, words)
        }
    }
    IconButton {
        id: attach

        objectName: "attachButton"
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.leftMargin: bar.floating ? 12 : 6
        anchors.bottomMargin: bar.floating ? 12 : 6
        size: 32
        iconName: "clip"
        // A press leaves the cursor in the field.
        focusPolicy: Qt.TabFocus
        text: qsTr("Attach files")
        onClicked: bar.attachments.pickChatFiles()
    }
    MicButton {
        id: mic

        x: bar.floating ? send.x - width - 8 : attach.x + attach.width + (listening ? 6 : 2)
        anchors.verticalCenter: attach.verticalCenter
        dictation: bar.dictation
        microphone: bar.microphone
        onClicked: bar.toggleDictation()
    }
    Label {
        id: timer

        objectName: "askHint"
        x: (bar.floating ? mic.x : send.x) - width - 8
        anchors.verticalCenter: send.verticalCenter
        visible: bar.dictation.dictating || !bar.floating
        style: Tokens.type.caption
        color: Tokens.t3
        tabular: bar.dictation.dictating
        text: bar.dictation.dictating
            ? Math.floor(bar.dictation.seconds / 60) + ":" + String(bar.dictation.seconds % 60).padStart(2, "0")
            : bar.hint
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
    DropArea {
        id: drop

        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.hasUrls
        onDropped: event => {
            event.accept(Qt.CopyAction)
            bar.attachments.uploadChatFiles(event.urls)
        }
    }
    Rectangle {
        objectName: "dropTarget"
        anchors.fill: parent
        visible: drop.containsDrag
        radius: bar.floating ? Tokens.radiusFloat : Tokens.radiusPopover
        color: Tokens.accentTint
        border.width: 2
        border.color: Tokens.accent

        Label {
            anchors.centerIn: parent
            style: Tokens.type.name
            color: Tokens.accentText
            text: qsTr("Drop to attach")
        }
    }
    // A press anywhere in the bar goes into the field.
    TapHandler {
        onTapped: field.forceActiveFocus(Qt.MouseFocusReason)
    }
}
