import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// The round button of the ask bar: sends what is typed, or stops the answer that is awaited.
BareButton {
    id: button

    property bool stopping: false
    property int size: 32

    objectName: stopping ? "stopButton" : "sendButton"
    // A press leaves the cursor in the field.
    focusPolicy: Qt.TabFocus
    implicitWidth: size
    implicitHeight: size
    text: stopping ? qsTr("Stop the answer") : qsTr("Send")

    background: Ground {
        radius: width / 2
        color: !button.enabled ? Tokens.sunken
            : button.stopping ? Tokens.t1
            : button.hovered || button.down ? Tokens.accentHover
            : Tokens.accent

        FocusRing {
            visible: button.visualFocus
            targetRadius: button.size / 2
        }
    }

    Icon {
        anchors.centerIn: parent
        name: button.stopping ? "stop" : "send"
        size: 18
        color: !button.enabled ? Tokens.tDisabled : button.stopping ? Tokens.surface : Tokens.accentInk
    }
}
