import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// Turns dictation on and off. While it is on, a ring follows how loud the person speaks.
// A press with the other button, Alt and Down, or the menu key choose the microphone.
BareButton {
    id: button

    required property DictationRoom dictation
    required property MicrophoneRoom microphone

    readonly property bool listening: dictation.dictating
    readonly property real ring: listening ? 2 + 4 * microphone.level : 0

    objectName: "micButton"
    // A press leaves the cursor in the field.
    focusPolicy: Qt.TabFocus
    implicitWidth: 32
    implicitHeight: 32
    text: listening ? qsTr("Stop dictation") : qsTr("Dictate")
    Accessible.description: qsTr("Alt and Down choose the microphone")
    Accessible.checkable: true
    Accessible.checked: listening
    Accessible.onPressAction: button.activate()
    Accessible.onToggleAction: button.activate()
    Keys.onMenuPressed: menu.open()
    Keys.onDownPressed: event => {
        event.accepted = event.modifiers & Qt.AltModifier
        if (event.accepted)
            menu.open()
    }

    background: Item {
        Rectangle {
            objectName: "micRing"
            anchors.fill: parent
            anchors.margins: -button.ring
            visible: button.listening
            radius: Tokens.radiusControl + button.ring
            color: Tokens.accentLine
        }
        Ground {
            anchors.fill: parent
            radius: Tokens.radiusControl
            color: button.listening ? (button.hovered || button.down ? Tokens.accentHover : Tokens.accent)
                : button.down ? Tokens.press
                : button.hovered ? Tokens.hover
                : Tokens.clear
        }
        FocusRing {
            visible: button.visualFocus
            targetRadius: Tokens.radiusControl
        }
    }

    Icon {
        anchors.centerIn: parent
        name: "mic"
        size: 20
        color: button.listening ? Tokens.accentInk : button.hovered ? Tokens.t1 : Tokens.t2
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: menu.open()
    }
    MicMenuLoader {
        id: menu

        microphone: button.microphone
    }
    TipLoader {
        active: button.hovered && !button.down
        text: button.text
        keys: button.listening ? qsTr("Esc") : ""
    }
}
