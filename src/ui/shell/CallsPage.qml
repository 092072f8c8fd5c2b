import QtQuick
import Kiv.Call
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// The past calls with the current counterpart, with the canvas to itself.
PanelFrame {
    id: page

    required property AppStore store

    iconName: "phone"
    title: qsTr("Calls")
    detail: store.scope.scopeKind === Store.ScopeKind.Agent ? store.scope.scopeName : "KIV"
    onEntered: {
        store.call.loadCallHistory()
        list.forceActiveFocus(Qt.OtherFocusReason)
    }

    Rectangle {
        x: 4
        y: 4
        width: parent.width - 8
        height: parent.height - 28
        radius: Tokens.radiusSheet
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line

        PastCalls {
            id: list

            anchors.fill: parent
            anchors.margins: 12
            focus: true
            store: page.store
        }
    }
}
