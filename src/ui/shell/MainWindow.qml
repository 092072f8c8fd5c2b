import QtQuick
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

Window {
    id: window

    required property AppStore store
    required property Commands commands

    title: "KIV"
    width: 1440
    height: 900
    minimumWidth: 1024
    minimumHeight: 680
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
        anchors.fill: parent
        store: window.store
        commands: window.commands
    }
}
