import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// Who answers, and when.
Item {
    id: head

    required property feedRow row
    required property bool compact
    required property ScopeRoom scope

    implicitHeight: line.y + figure.height + 6

    Row {
        id: line

        y: head.compact ? 16 : 20
        spacing: head.compact ? 8 : 12

        Figure {
            id: figure

            kind: head.scope.scopeKind
            name: head.scope.scopeName
            colorHex: head.scope.scopeColorHex
            size: head.compact ? 20 : 28
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            style: Tokens.type.smallStrong
            text: head.scope.scopeName
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            style: Tokens.type.caption
            tabular: true
            color: Tokens.t3
            text: head.row.time
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: head.row.fromCall
            name: "phone"
            size: 14
            color: Tokens.t3
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("said in a call")
        }
        Chip {
            anchors.verticalCenter: parent.verticalCenter
            visible: head.row.memberLabel !== ""
            height: Tokens.fit(20)
            text: qsTr("with %1").arg(head.row.memberLabel)
        }
    }
}
