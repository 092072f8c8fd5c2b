import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Who the call is with, how it goes, and what can be done about it.
FocusScope {
    id: stage

    required property AppStore store
    required property bool transcriptOpen

    readonly property CallRoom call: store.call
    readonly property bool active: call.callPhase === Store.CallPhase.Active && !call.callReconnecting
    readonly property bool speaking: active && !call.callHeld && call.callMode === "speaking"
    readonly property bool heard: active && !call.callHeld && !call.callMuted
    /// Where in a breath the counterpart's voice is, 0 to 1.
    property real phase
    readonly property real breath: speaking && !Tokens.reducedMotion ? (1 - Math.cos(2 * Math.PI * phase)) / 2 : 0
    readonly property real level: heard ? store.microphone.level : 0

    signal transcriptToggled()

    NumberAnimation on phase {
        from: 0
        to: 1
        duration: Tokens.breathe
        loops: Animation.Infinite
        running: stage.speaking && stage.visible && !Tokens.reducedMotion
    }

    Connections {
        target: stage.call

        function onCallTypingChanged() {
            if (!stage.call.callTyping)
                controls.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    CallHead {
        id: head

        width: parent.width
        call: stage.call
    }
    Item {
        id: room

        anchors.top: head.bottom
        anchors.bottom: words.top
        width: parent.width

        CallFigure {
            anchors.centerIn: parent
            visible: size >= 120
            kind: stage.call.callKind
            name: stage.call.callName
            colorHex: stage.call.callColorHex
            // With room for the rings when they are widest.
            size: Math.min(440, (room.height - 24) / 1.06, room.width - 48)
            level: stage.speaking ? stage.breath : stage.level
            speaking: stage.speaking
            connecting: stage.call.callPhase === Store.CallPhase.Connecting || stage.call.callReconnecting
        }
    }
    Column {
        id: words

        anchors.bottom: type.visible ? type.top : controls.top
        anchors.bottomMargin: 28
        width: parent.width
        spacing: 6

        Label {
            objectName: "callState"
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, Tokens.fit(560), parent.width - 48)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 3
            style: Tokens.type.title
            color: stage.call.callError === "" ? Tokens.t1 : Tokens.dangerText
            text: stage.call.callError !== "" ? stage.call.callError
                : stage.call.callReconnecting ? qsTr("Reconnecting")
                : stage.call.callPhase === Store.CallPhase.Connecting ? qsTr("Connecting")
                : stage.call.callPhase === Store.CallPhase.Ending ? qsTr("Call ended")
                : stage.call.callHeld ? qsTr("On hold")
                : stage.call.callEndingSoon ? qsTr("Ending soon")
                : stage.speaking ? qsTr("%1 is speaking").arg(stage.call.callName)
                : stage.call.callMuted ? qsTr("Muted")
                : qsTr("Listening")
        }
        LevelBars {
            objectName: "levelBars"
            anchors.horizontalCenter: parent.horizontalCenter
            breathing: stage.speaking
            phase: stage.phase
            level: stage.level
            color: stage.heard || stage.speaking ? Tokens.accentText : Tokens.t3
        }
        Item {
            width: 1
            height: 2
        }
        CaptionText {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(Tokens.fit(560), parent.width - 48)
            text: latest.text
        }
    }
    LatestSpeech {
        id: latest

        lines: stage.call.callTranscript
    }
    TypeBar {
        id: type

        anchors.bottom: controls.top
        anchors.bottomMargin: 20
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(Tokens.fit(480), parent.width - 48)
        visible: stage.call.callTyping && !stage.transcriptOpen
        call: stage.call
    }
    CallControls {
        id: controls

        anchors.bottom: parent.bottom
        anchors.bottomMargin: 32
        anchors.horizontalCenter: parent.horizontalCenter
        focus: true
        store: stage.store
        transcriptOpen: stage.transcriptOpen
        onTranscriptToggled: stage.transcriptToggled()
    }
}
