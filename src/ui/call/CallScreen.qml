import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// A call: who it is with and how it goes at the left, what is said at the right.
FocusScope {
    id: screen

    enum Wish { Unset, Open, Closed }

    required property AppStore store

    property int wish: CallScreen.Unset
    readonly property bool transcriptOpen: wish === CallScreen.Unset ? width >= panel.width + 800 : wish === CallScreen.Open

    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Call with %1").arg(store.call.callName)
    Keys.onEscapePressed: store.call.leaveCallScreen()

    Rectangle {
        anchors.fill: parent
        color: Tokens.bg
    }
    CallStage {
        width: parent.width - (panel.visible ? panel.width : 0)
        height: parent.height
        focus: true
        store: screen.store
        transcriptOpen: screen.transcriptOpen
        onTranscriptToggled: screen.wish = screen.transcriptOpen ? CallScreen.Closed : CallScreen.Open
    }
    ToastStack {
        // Above the controls and the field.
        bottom: 120
    }
    TranscriptPanel {
        id: panel

        anchors.right: parent.right
        // The controls keep their room beside it.
        width: Math.max(400, Math.min(Tokens.fit(400), screen.width - 560))
        height: parent.height
        visible: screen.transcriptOpen
        store: screen.store
    }
}
