import QtQuick
import Kiv.Call
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// What can be done in a call.
FocusScope {
    id: controls

    required property AppStore store
    required property bool transcriptOpen

    readonly property CallRoom call: store.call
    readonly property bool active: call.callPhase === Store.CallPhase.Active

    signal transcriptToggled()

    implicitWidth: row.width + 20
    implicitHeight: 72
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Call")

    Shadow {
        targetRadius: 36
    }
    Rectangle {
        anchors.fill: parent
        radius: 36
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line2
    }
    Row {
        id: row

        x: 10
        y: 10
        spacing: 12

        RoundButton {
            objectName: "muteButton"
            iconName: "micoff"
            text: controls.call.callMuted ? qsTr("Unmute") : qsTr("Mute")
            on: controls.call.callMuted
            enabled: controls.active
            focus: true
            onClicked: controls.call.toggleMute()
        }
        RoundButton {
            objectName: "holdButton"
            iconName: "pause"
            text: controls.call.callHeld ? qsTr("Resume") : qsTr("Hold")
            on: controls.call.callHeld
            enabled: controls.active
            onClicked: controls.call.toggleHold()
        }
        RoundButton {
            objectName: "microphoneButton"
            iconName: "mic"
            leadsOn: true
            text: qsTr("Microphone")
            on: microphones.visible
            onClicked: microphones.visible = !microphones.visible

            MicMenu {
                id: microphones

                x: Math.round((parent.width - width) / 2)
                y: -height - 16
                microphone: controls.store.microphone
            }
        }
        RoundButton {
            objectName: "typeButton"
            iconName: "keyboard"
            text: qsTr("Type instead")
            on: controls.call.callTyping
            Accessible.checkable: true
            Accessible.checked: on
            enabled: controls.active
            onClicked: controls.call.callTyping ? controls.call.closeTyping() : controls.call.openTyping()
        }
        RoundButton {
            objectName: "shareButton"
            iconName: "share"
            text: qsTr("Copy the link of the canvas")
            onClicked: controls.call.callShare()
        }
        RoundButton {
            objectName: "transcriptButton"
            iconName: "caption"
            text: controls.transcriptOpen ? qsTr("Hide the transcript") : qsTr("Show the transcript")
            on: controls.transcriptOpen
            onClicked: controls.transcriptToggled()
        }
        RoundButton {
            objectName: "hangUpButton"
            iconName: "hang"
            ending: true
            text: qsTr("Hang up")
            keys: "Ctrl D"
            onClicked: controls.call.hangupCall()
        }
    }
}
