import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Somebody to talk to: who it is, and the two ways to begin.
BareButton {
    id: tile

    required property int kind
    required property string name
    required property string detail
    required property string colorHex
    property bool offline: false

    signal called()

    implicitHeight: Tokens.fit(112)
    text: name
    Accessible.name: qsTr("%1, %2").arg(name).arg(detail)
    Accessible.role: Accessible.ListItem

    background: Ground {
        radius: Tokens.radiusCard
        color: tile.down ? Tokens.press : tile.hovered ? Tokens.hover : Tokens.surface
        border.width: 1
        border.color: Tokens.line

        FocusRing {
            visible: tile.visualFocus
            targetRadius: Tokens.radiusCard
        }
    }

    Figure {
        x: 16
        y: 16
        kind: tile.kind === Store.RailRow.Kiv ? Store.ScopeKind.Kiv : Store.ScopeKind.Agent
        name: tile.name
        colorHex: tile.colorHex
        size: 36
        offline: tile.offline
    }
    Column {
        x: 64
        y: 16
        width: parent.width - x - 16

        FullLabel {
            width: parent.width
            style: Tokens.type.strong
            text: tile.name
        }
        FullLabel {
            width: parent.width
            style: Tokens.type.caption
            color: Tokens.t3
            text: tile.detail
        }
    }
    Row {
        x: 64
        y: Tokens.fit(64)
        spacing: 8

        Button {
            size: Button.Small
            text: qsTr("Talk")
            Accessible.name: qsTr("Talk to %1").arg(tile.name)
            focusPolicy: tile.activeFocusOnTab ? Qt.StrongFocus : Qt.NoFocus
            onClicked: tile.clicked()
        }
        Button {
            kind: Button.Quiet
            size: Button.Small
            iconName: "phone"
            text: qsTr("Call")
            Accessible.name: qsTr("Call %1").arg(tile.name)
            focusPolicy: tile.activeFocusOnTab ? Qt.StrongFocus : Qt.NoFocus
            onClicked: tile.called()
        }
    }
}
