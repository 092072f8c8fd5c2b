import QtQuick
import Kiv.Call
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// What has been said in the call so far, and a field for those who would rather type.
FocusScope {
    id: panel

    required property AppStore store
    readonly property CallRoom call: store.call

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Transcript")

    Rectangle {
        anchors.fill: parent
        color: Tokens.rail
    }
    Divider {
        width: 1
        height: parent.height
    }
    Label {
        x: 24
        y: (Tokens.topBarHeight - height) / 2
        style: Tokens.type.strong
        text: qsTr("Transcript")
        Accessible.role: Accessible.Heading
    }
    IconButton {
        objectName: "copyTranscript"
        x: parent.width - width - 12
        y: (Tokens.topBarHeight - height) / 2
        enabled: list.count > 0
        iconName: copied.running ? "check" : "copy"
        text: copied.running ? qsTr("Copied") : qsTr("Copy the transcript")
        onClicked: {
            Clipboard.setText(CallText.transcript(panel.call.callTranscript, panel.call.callName))
            copied.restart()
        }

        Timer {
            id: copied

            interval: Tokens.confirmation
        }
    }
    Divider {
        y: Tokens.topBarHeight - 1
        width: parent.width
    }
    TranscriptList {
        id: list

        y: Tokens.topBarHeight
        width: parent.width
        height: bar.y - y - 8
        store: panel.store
    }
    Label {
        x: 24
        y: bar.y - height - 20
        visible: list.count === 0
        color: Tokens.t3
        text: qsTr("What is said shows here")
    }
    TypeBar {
        id: bar

        x: 16
        y: parent.height - height - 16
        width: parent.width - 32
        focus: true
        call: panel.call
    }
}
