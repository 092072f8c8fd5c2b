import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Says something in a call by typing. Every bar shows the same draft.
FocusScope {
    id: bar

    required property CallRoom call

    function submit() {
        if (send.enabled)
            call.callSay(field.text)
    }

    implicitHeight: Tokens.fit(44)
    onVisibleChanged: if (visible && call.callTyping) field.forceActiveFocus(Qt.ShortcutFocusReason)

    Connections {
        target: bar.call

        function onCallDraftChanged() {
            if (field.text !== bar.call.callDraft)
                field.text = bar.call.callDraft
        }
        function onCallTypingChanged() {
            if (bar.visible && bar.call.callTyping)
                field.forceActiveFocus(Qt.ShortcutFocusReason)
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusPopover
        color: Tokens.surface
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Tokens.focus : Tokens.line2
    }
    T.TextField {
        id: field

        objectName: "callField"
        width: send.x - 6
        height: parent.height
        focus: true
        leftPadding: 14
        verticalAlignment: TextInput.AlignVCenter
        enabled: bar.call.callPhase === Store.CallPhase.Active
        font.family: Tokens.family
        font.pixelSize: Tokens.type.body.size
        color: Tokens.t1
        selectionColor: Tokens.selection
        selectedTextColor: Tokens.t1
        selectByMouse: true
        text: bar.call.callDraft
        Accessible.name: qsTr("Type instead")
        onTextEdited: bar.call.callDraft = text
        onAccepted: bar.submit()
        Keys.onEscapePressed: event => {
            event.accepted = bar.call.callTyping
            bar.call.closeTyping()
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            x: field.leftPadding
            width: field.width - x
            visible: field.text === "" && field.preeditText === ""
            color: field.enabled ? Tokens.t3 : Tokens.tDisabled
            text: qsTr("Type instead")
            Accessible.ignored: true
        }
    }
    SendButton {
        id: send

        x: parent.width - width - 6
        anchors.verticalCenter: parent.verticalCenter
        enabled: field.enabled && /\S/.test(field.text)
        onClicked: bar.submit()
    }
}
