import QtQuick
import Kiv.Call
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

Window {
    id: window

    required property AppStore store
    required property Commands commands

    title: "KIV"
    visible: true
    color: Tokens.bg
    onClosing: close => close.accepted = store.releaseWindow()

    Connections {
        target: window.store.account

        function onWindowReleased() {
            window.close()
        }
    }
    MainView {
        id: view

        anchors.fill: parent
        visible: !call.shown
        store: window.store
        commands: window.commands
    }
    CallPlace {
        id: call

        anchors.fill: parent
        store: window.store
        onShownChanged: if (!shown) view.forceActiveFocus(Qt.OtherFocusReason)
    }
}
