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
        lastPrompt: composer.store.chat.lastPrompt
        placeholder: qsTr("Ask %1…").arg(composer.store.scope.scopeName)
        hint: composer.hint
        stoppable: composer.store.chat.canStop
        onEdited: text => composer.store.chat.draft = text
        onSubmitted: text => composer.store.chat.send(text)
        onStopRequested: composer.store.chat.stopLive()
    }
    Label {
        anchors.top: bar.bottom
        anchors.topMargin: 6
        width: composer.width
        visible: !composer.floating
        horizontalAlignment: Text.AlignHCenter
        style: Tokens.type.micro
        color: composer.store.chat.chatNote === "" ? Tokens.t3 : Tokens.dangerText
        text: composer.store.chat.chatNote === "" ? composer.note : composer.store.chat.chatNote
    }
}
