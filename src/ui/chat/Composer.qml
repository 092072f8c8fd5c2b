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

    readonly property string trouble: store.chat.chatNote

    implicitHeight: bar.height + (floating ? 0 : Math.max(Tokens.fit(22), line.height + 6))

    AskBar {
        id: bar

        width: composer.width
        focus: true
        floating: composer.floating
        draft: composer.store.chat.draft
        attachments: composer.store.attachments
        dictation: composer.store.dictation
        microphone: composer.store.microphone
        lastPrompt: composer.store.chat.lastPrompt
        placeholder: qsTr("Ask %1…").arg(composer.store.scope.scopeName)
        hint: composer.hint
        stoppable: composer.store.chat.canStop
        onEdited: text => composer.store.chat.draft = text
        onSubmitted: composer.store.chat.sendDraft()
        onStopRequested: composer.store.chat.stopLive()
    }
    Announcement {
        words: composer.trouble
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words
    }
    Label {
        id: line

        objectName: "chatNote"
        anchors.top: bar.bottom
        anchors.topMargin: composer.floating ? 4 : 6
        width: composer.width
        horizontalAlignment: Text.AlignHCenter
        // What went wrong is read to its end.
        wrapMode: composer.trouble === "" ? Text.NoWrap : Text.Wrap
        style: Tokens.type.micro
        color: composer.trouble === "" ? Tokens.t3 : Tokens.dangerText
        text: composer.trouble !== "" ? composer.trouble
            : composer.store.connection.offline ? qsTr("Offline: sent once the connection is back")
            : composer.store.attachments.chatUploading ? qsTr("Uploading…")
            : composer.note
    }
}
