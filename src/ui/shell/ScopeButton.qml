import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// Shows who the conversation is with and opens the list of everybody.
BareButton {
    id: button

    required property AppStore store
    required property real popoverHeight
    /// The room that there is for it: the detail gives way first.
    required property real most

    readonly property ScopeRoom scope: store.scope

    objectName: "scopeButton"
    implicitWidth: Math.ceil(row.implicitWidth) + 18
    implicitHeight: Tokens.fit(36)
    enabled: scope.auth === Store.AuthPhase.SignedIn
    text: scope.scopeDetail === "" ? scope.scopeName : qsTr("%1, %2").arg(scope.scopeName).arg(scope.scopeDetail)
    Accessible.role: Accessible.ButtonMenu
    onClicked: store.layout.toggleTopScope()

    background: Ground {
        radius: Tokens.radiusControl
        color: button.down ? Tokens.press : button.hovered ? Tokens.hover : Tokens.surface
        border.width: 1
        border.color: Tokens.line2

        FocusRing {
            visible: button.visualFocus
        }
    }

    Row {
        id: row

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        Figure {
            anchors.verticalCenter: parent.verticalCenter
            kind: button.scope.scopeKind
            name: button.scope.scopeName
            colorHex: button.scope.scopeColorHex
            size: 20
            offline: button.store.connection.offline
        }
        FullLabel {
            id: name

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Tokens.fit(220), button.most - 70)
            style: Tokens.type.name
            text: button.scope.scopeName
        }
        FullLabel {
            readonly property real room: button.most - 78 - name.width

            anchors.verticalCenter: parent.verticalCenter
            visible: text !== "" && room > 32
            width: Math.min(implicitWidth, Tokens.fit(180), room)
            style: Tokens.type.line
            color: Tokens.t3
            text: button.scope.scopeDetail
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "down"
            size: 16
            color: Tokens.t1
        }
    }
    PopupPlace {
        most: button.popoverHeight
        shown: button.store.layout.topScopeOpen
        Component.onCompleted: setSource("ScopePopover.qml", { "store": button.store })
    }
}
