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
    property bool offline: false

    /// What goes with the name.
    readonly property real beside: figure.size + line.spacing
        + (time.visible ? time.implicitWidth + line.spacing : 0)
        + (spoken.visible ? spoken.size + line.spacing : 0)
        + (helper.visible ? helper.width + line.spacing : 0)

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
            offline: head.offline
        }
        FullLabel {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, head.width - head.beside)
            style: Tokens.type.smallStrong
            text: head.scope.scopeName
            Accessible.ignored: text === ""
        }
        Label {
            id: time

            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            style: Tokens.type.caption
            tabular: true
            color: Tokens.t3
            text: head.row.time
        }
        Icon {
            id: spoken

            anchors.verticalCenter: parent.verticalCenter
            visible: head.row.fromCall
            name: "phone"
            size: 14
            color: Tokens.t3
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("said in a call")
        }
        Chip {
            id: helper

            anchors.verticalCenter: parent.verticalCenter
            visible: head.row.memberLabel !== ""
            width: Math.min(implicitWidth, head.width / 3)
            height: Tokens.fit(20)
            text: qsTr("with %1").arg(head.row.memberLabel)
        }
    }
}
