import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The ask bar of the current conversation, with the line of notes below it.
FocusScope {
    id: composer

    required property AppStore store
    property bool floating: false
    property string hint: ""
    property string note: ""

    implicitHeight: bar.height + (floating ? 0 : 22)

    AskBar {
        id: bar

        width: composer.width
        focus: true
        floating: composer.floating
        draft: composer.store.chat.draft
        attachments: composer.store.attachments
        lastPrompt: composer.store.chat.lastPrompt
        placeholder: qsTr("Ask %1…").arg(composer.store.scope.scopeName)
        hint: composer.hint
        stoppable: composer.store.chat.canStop
        onEdited: text => composer.store.chat.draft = text
        onSubmitted: text => composer.store.chat.send(text)
        onStopRequested: composer.store.chat.stopLive()
    }
    Label {
        readonly property string error: composer.store.chat.chatNote

        objectName: "chatNote"
        anchors.top: bar.bottom
        anchors.topMargin: composer.floating ? 4 : 6
        width: composer.width
        horizontalAlignment: Text.AlignHCenter
        style: Tokens.type.micro
        color: error === "" ? Tokens.t3 : Tokens.dangerText
        Accessible.role: error === "" ? Accessible.StaticText : Accessible.AlertMessage
        text: error !== "" ? error
            : composer.store.attachments.chatUploading ? qsTr("Uploading…")
            : composer.note
    }
}
